#include "screens/help/Guide.h"

#include "screens/help/Lessons.h"

namespace lensbench::lessons {
namespace {

constexpr Words opening{
    "Δώδεκα μαθήματα για το πρόγραμμα Lens Bench. Για το καθένα αρκούν πέντε λεπτά: τι βλέπεις, τι "
    "κάνεις, τι προσέχεις, και μια ερώτηση με την απάντησή της. Στο παράθυρο της βοήθειας (F1) το "
    "«Στήσε το» βάζει στην οθόνη ό,τι χρειάζεται το μάθημα· το Ctrl+Z το παίρνει πίσω. Χωρίς "
    "ποντίκι: το Tab φτάνει ως την εικόνα και πηγαίνει σε όσα πιάνονται, τα βέλη τα μετακινούν, το "
    "Enter πάνω στην πηγή στέλνει το φως της, όπως το Shift με πάτημα, και το Alt ανοίγει τα "
    "μενού· ό,τι απαντά η εικόνα στον δείκτη του ποντικιού είναι γραμμένο στο «Τι προσέχεις».",
    "Twelve lessons for the program Lens Bench. Five minutes are enough for each: what you see, "
    "what you do, what you look for, and a question with its answer. In the help window (F1) “Set "
    "it up” puts on the screen what the lesson needs; Ctrl+Z takes it back. Without a mouse: Tab "
    "reaches the picture and goes to the things that can be taken, arrows move them, Enter at the "
    "source sends its light as Shift and a press do, and Alt opens the menus; what the picture "
    "answers to the pointer is written under “What to look for”."};

std::string row(const Words& name, const Words& words) {
  std::string line("| **");
  line.append(name.greek).append(" · ").append(name.english).append("** | ");
  return line.append(words.greek).append(" | ").append(words.english).append(" |\n");
}

}  // namespace

std::string picturePath(std::size_t number) {
  const std::string digits = std::to_string(number);
  return "pictures/lesson-" + std::string(number < 10 ? "0" : "") + digits + ".png";
}

std::string guide() {
  std::string page("# Μαθήματα οπτικής · Lessons in optics\n\n");
  page.append(opening.greek).append("\n\n").append(opening.english).append("\n");
  std::size_t number = 0;
  for (const Lesson& lesson : all()) {
    ++number;
    std::string title(lesson.title.greek);
    title.append(" · ").append(lesson.title.english);
    page.append("\n## ").append(std::to_string(number)).append(". ").append(title);
    page.append("\n\n![").append(title).append("](").append(picturePath(number));
    page.append(")\n\n| | Ελληνικά | English |\n|---|---|---|\n");
    for (const Part& part : parts(lesson)) page += row(part.name, part.words);
  }
  return page;
}

}  // namespace lensbench::lessons
