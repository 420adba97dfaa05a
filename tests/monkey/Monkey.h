// A hand that does anything to all screens of the program, in an order that a seed decides.
#pragma once

#include <array>
#include <functional>
#include <iterator>
#include <memory>
#include <random>

#include <QObject>
#include <QString>
#include <QTemporaryDir>

class QWidget;

namespace lensbench {

class Form;
class Screens;

class Monkey : public QObject {
 public:
  // The program is started. What comes next is told in words just before it is done.
  explicit Monkey(unsigned seed, std::function<void(const QString&)> tell = {});
  ~Monkey() override;
  Monkey(const Monkey&) = delete;
  Monkey& operator=(const Monkey&) = delete;

  // One action, and all that follows from it; the number of the error that came out, or 0.
  int act();
  // After an error the program has ended; the student starts it again.
  void startAnew();

  // The last action, which begins with the name of the screen that it was done to, or with
  // "program".
  const QString& lastAction() const { return last_; }
  // What is not as it has to be, in words: a picture on a screen in sight that is not bit for bit
  // what its value gives, or no screen in sight at all. Empty when all is well.
  QString fault();

 protected:
  // Of every object of the program: a window is on its way to another state.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Program;

  int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }
  template <typename List>
  const auto& anyOf(const List& list) {
    return *(std::begin(list) + below(static_cast<int>(std::size(list))));
  }
  // A part with a name of its own; null where the form has none.
  template <typename Part>
  Part* anyPart(Form& form);

  Screens& screens();
  std::array<Form*, 4> forms();
  Form& anyFormInSight();

  void choose();
  void say(const QString& what);
  void slide(Form& form);
  void drag(Form& form);
  void hover(Form& form);
  void trigger(Form& form);
  void press(Form& form);
  void key(Form& form);
  void wheel(Form& form);
  void type(Form& form);
  void window(Form& form);
  void goBackAndForth();
  void help();
  void lesson();
  void tick();
  void prepareAnswers();
  QPoint anywhere(const QWidget& area);

  std::mt19937 random_;
  std::function<void(const QString&)> tell_;
  QTemporaryDir folder_;  // for pictures that are saved
  std::unique_ptr<Program> program_;
  QString form_;  // that is acted on; "program" for what is done to all of them
  QString last_;
  bool changesState_ = false;
};

}  // namespace lensbench
