// An error that escapes a handler is shown and ends the program with exit status 1.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <new>

#include <QCoreApplication>
#include <QTest>
#include <QTimer>

#include "canvas/RuntimeError.h"
#include "canvas/qt/DrawingArea.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/app/Shell.h"

namespace lensbench {
namespace {

void deliverEvents() {
  for (int i = 0; i < 50; ++i) QCoreApplication::processEvents();
}

TEST(ErrorBoundary, SaysNumberAndWordsInBothLanguages) {
  const RuntimeError error(RuntimeError::Code::DivisionByZero);
  EXPECT_EQ(errorHeadline(error), "Σφάλμα 11: διαίρεση με το μηδέν · Error 11: Division by zero");
}

TEST(ErrorBoundary, NamesTheActionInBothLanguages) {
  const RuntimeError error(RuntimeError::Code::DivisionByZero, "Η ακτίνα είναι 0.");
  EXPECT_EQ(errorSentence(error, "Ακτίνα 2 · Radius 2"),
            "Η ακτίνα είναι 0.\n"
            "Συνέβη στην ενέργεια «Ακτίνα 2» και το πρόγραμμα τελειώνει. "
            "It happened at the action “Radius 2”, and the program ends.");
  EXPECT_EQ(errorSentence(RuntimeError(RuntimeError::Code::Overflow), "SPHERICAL  LENSES"),
            "Συνέβη στην ενέργεια «SPHERICAL  LENSES» και το πρόγραμμα τελειώνει. "
            "It happened at the action “SPHERICAL  LENSES”, and the program ends.");
}

TEST(ErrorBoundary, SaysThatAnErrorCameAtStartUp) {
  EXPECT_EQ(errorSentence(RuntimeError(RuntimeError::Code::Overflow), {}),
            "Συνέβη στο ξεκίνημα και το πρόγραμμα τελειώνει. "
            "It happened at start-up, and the program ends.");
}

TEST(ErrorBoundary, AnErrorInAHandlerEndsTheProgramAfterTheBox) {
  EXPECT_EXIT(
      {
        Program program;
        Screens& screens = program.screens;
        Main(screens);
        screens.kelmo().controls().singleray.trigger();
        QTimer::singleShot(0, [&screens] { screens.moniaktina().controls().aktina2.Value(0); });
        deliverEvents();
      },
      ::testing::ExitedWithCode(1), "Error 11: Division by zero");
}

TEST(ErrorBoundary, AnAnswerThatIsNoNumberEndsTheProgramAndNamesTheAction) {
  EXPECT_EXIT(
      {
        Shell::instance->boxes.answer = "abc";
        Program program;
        Screens& screens = program.screens;
        Main(screens);
        QTimer::singleShot(0, [&screens] { screens.kelmo().controls().EPANALIPSI.trigger(); });
        deliverEvents();
      },
      ::testing::ExitedWithCode(1),
      "Error 13: Type mismatch(.|\n)*“abc” is no number(.|\n)*Bundle of parallel rays");
}

TEST(ErrorBoundary, AnAngleThatIsNoNumberEndsTheProgramAndNamesTheAction) {
  EXPECT_EXIT(
      {
        Shell::instance->boxes.answer = "x";
        Program program;
        Screens& screens = program.screens;
        Main(screens);
        screens.openIbnSahl();
        QTimer::singleShot(
            0, [&screens] { screens.ElSahl().controls().parallilidesmifotos.trigger(); });
        deliverEvents();
      },
      ::testing::ExitedWithCode(1), "Error 13: Type mismatch(.|\n)*Bundle of parallel rays");
}

TEST(ErrorBoundary, StandsAroundStartUpToo) {
  EXPECT_EXIT({ Shell::instance->application.run([] { throwOverflow(); }); },
              ::testing::ExitedWithCode(1), "Error 6: Overflow(.|\n)*at start-up");
}

TEST(ErrorBoundary, SaysThatMemoryHasRunOut) {
  const RuntimeError error = outOfMemory();
  EXPECT_EQ(errorHeadline(error), "Σφάλμα 7: έλλειψη μνήμης · Error 7: Out of memory");
  EXPECT_EQ(errorSentence(error, "Πλάτος · Width"),
            "Ο υπολογιστής δεν έχει άλλη μνήμη να δώσει· ένα μικρότερο παράθυρο και λιγότερες "
            "ακτίνες χρειάζονται λιγότερη. "
            "The computer has no more memory to give; a smaller window and fewer rays need less.\n"
            "Συνέβη στην ενέργεια «Πλάτος» και το πρόγραμμα τελειώνει. "
            "It happened at the action “Width”, and the program ends.");
}

// As a person does, from an event.
void moveBar(Program& program) {
  auto& bar = program.screens.kelmo().controls().aktina1;
  QTimer::singleShot(0, [&bar] { bar.Value(77); });
  deliverEvents();
}

TEST(ErrorBoundary, StandsWhereverMemoryRunsOut) {
  EXPECT_EXIT({ Shell::instance->application.run([] { throw std::bad_alloc(); }); },
              ::testing::ExitedWithCode(1), "Error 7: Out of memory(.|\n)*at start-up");
  // In a handler, after it, when it becomes a step, and while a picture is drawn.
  EXPECT_EXIT(
      {
        Program program;
        Main(program.screens);
        QObject::connect(&program.screens.kelmo().controls().aktina1, &ScrollBar::Change,
                         [] { throw std::bad_alloc(); });
        moveBar(program);
      },
      ::testing::ExitedWithCode(1), "Error 7: Out of memory");
  EXPECT_EXIT(
      {
        Program program;
        Main(program.screens);
        Shell::instance->actions.watchBy([](By) { throw std::bad_alloc(); });
        moveBar(program);
      },
      ::testing::ExitedWithCode(1), "Error 7: Out of memory(.|\n)*Radius");
  EXPECT_EXIT(
      {
        Program program;
        Main(program.screens);
        program.screens.kelmo().area().drawBy([] { throw std::bad_alloc(); });
        program.screens.kelmo().area().stale();
        QTest::qWait(200);
      },
      ::testing::ExitedWithCode(1), "Error 7: Out of memory");
}

TEST(ErrorBoundary, ASecondErrorBehindTheBoxIsNotToldToo) {
  using ::testing::HasSubstr;
  using ::testing::Not;
  EXPECT_EXIT(
      {
        Shell::instance->boxes.whileOpen = [] {
          QTimer::singleShot(0, [] { throwDivisionByZero(); });
          QTimer::singleShot(0, [] { throw std::bad_alloc(); });
          deliverEvents();
        };
        QTimer::singleShot(0, [] { throwOverflow(); });
        deliverEvents();
      },
      ::testing::ExitedWithCode(1),
      ::testing::AllOf(HasSubstr("Error 6"), Not(HasSubstr("Error 11")),
                       Not(HasSubstr("Error 7"))));
}

}  // namespace
}  // namespace lensbench
