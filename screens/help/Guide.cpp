#include "screens/help/Guide.h"

#include "screens/help/Lessons.h"

namespace lensbench::lessons {
namespace {

constexpr Words opening{
    "Δώδεκα μαθήματα για το πρόγραμμα Lens Bench. Για το καθένα αρκούν πέντε λεπτά: τι βλέπεις, τι "
    "κάνεις, τι προσέχεις, και μια ερώτηση με την απάντησή της. Στο παράθυρο της βοήθειας (F1) το "
    "«Στήσε το» βάζει στην οθόνη ό,τι χρειάζεται το μάθημα· το Ctrl+Z το παίρνει πίσω.",
    "Twelve lessons for the program Lens Bench. Five minutes are enough for each: what you see, "
    "what you do, what you look for, and a question with its answer. In the help window (F1) “Set "
    "it up” puts on the screen what the lesson needs; Ctrl+Z takes it back."};

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
