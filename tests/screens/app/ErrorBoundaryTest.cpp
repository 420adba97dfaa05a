// An error that escapes a handler is shown and ends the program with exit status 1.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>

#include "canvas/RuntimeError.h"
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

}  // namespace
}  // namespace lensbench
