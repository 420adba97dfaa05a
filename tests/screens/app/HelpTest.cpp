// The help window: what it lists, which screen it tells of, and that it is in nobody's way.
#include <algorithm>
#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>

#include "app/Help.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/Keys.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/app/Shell.h"

namespace lensbench {
namespace {

class HelpTest : public ::testing::Test {
 protected:
  HelpTest() { Main(screens); }

  void open(QWidget& screen) {
    screen.activateWindow();
    QApplication::processEvents();
    QTest::keyClick(&screen, Qt::Key_F1);
    QApplication::processEvents();
  }
  const HelpWindow* window() { return screens.helpWindow().window(); }
  QTextBrowser& browser() { return *window()->findChild<QTextBrowser*>(); }
  QString text() { return browser().toPlainText(); }
  bool tellsOf(const DrawingScreen& screen) {
    const auto things = screen.things();
    const auto told = [this](const QString& words) { return text().contains(words); };
    return std::all_of(things.begin(), things.end(), [&](const Thing& thing) {
      const QStringList lines = thing.words.split('\n');
      return told(thing.name) && std::all_of(lines.begin(), lines.end(), told);
    });
  }
  void expectThingsOf(const DrawingScreen& screen) {
    ASSERT_FALSE(screen.things().empty());
    // Windows come to their size, and with it things to their places, in their own time.
    (void)QTest::qWaitFor([&] { return tellsOf(screen); }, 3000);
    EXPECT_TRUE(text().startsWith(screen.accessibleName())) << text().left(80).toStdString();
    for (const Thing& thing : screen.things()) {
      EXPECT_TRUE(text().contains(thing.name)) << thing.name.toStdString();
      for (const QString& line : thing.words.split('\n')) {
        EXPECT_TRUE(text().contains(line)) << line.toStdString();
      }
    }
  }

  Program program;
  Screens& screens = program.screens;
};

TEST_F(HelpTest, IsNotThereUntilItIsAskedFor) { EXPECT_EQ(window(), nullptr); }

TEST_F(HelpTest, ListsEveryKeyOfTheTableAndWhatCanBeTakenOnTheScreen) {
  open(screens.kelmo());
  ASSERT_NE(window(), nullptr);
  EXPECT_TRUE(window()->isVisible());
  for (const Key& key : keys()) {
    EXPECT_TRUE(text().contains(QString::fromUtf8(key.name))) << key.name;
    EXPECT_TRUE(text().contains(QString::fromUtf8(key.greek))) << key.greek;
    EXPECT_TRUE(text().contains(QString::fromUtf8(key.english))) << key.english;
  }
  expectThingsOf(screens.kelmo());
}

TEST_F(HelpTest, IsNotModalAndThereIsOneOfIt) {
  open(screens.kelmo());
  const HelpWindow* first = window();
  EXPECT_FALSE(first->isModal());
  open(screens.kelmo());
  EXPECT_EQ(window(), first);
  screens.kelmo().controls().aktina1.Value(120);
  EXPECT_EQ(screens.kelmo().R1(), 120.0) << "the screen is worked beside it";
}

TEST_F(HelpTest, FollowsWhichScreenIsInFront) {
  open(screens.kelmo());
  screens.kelmo().controls().singleray.trigger();
  QTest::qWait(50);
  expectThingsOf(screens.moniaktina());
  screens.moniaktina().controls().Command1.click();
  screens.openLensMenu();
  QApplication::processEvents();
  EXPECT_TRUE(text().startsWith(screens.eisagogiko().accessibleName()));
  screens.eisagogiko().controls().Command1.click();
  QApplication::processEvents();
  expectThingsOf(screens.ElSahl());
}

TEST_F(HelpTest, OpensFromTheLensMenuToo) {
  screens.openLensMenu();
  open(screens.eisagogiko());
  ASSERT_NE(window(), nullptr);
  EXPECT_TRUE(text().startsWith(screens.eisagogiko().accessibleName()));
}

TEST_F(HelpTest, TellsThePresentNumbersWithoutLeavingThePlaceThatIsRead) {
  open(screens.kelmo());
  QScrollBar& bar = *browser().verticalScrollBar();
  bar.setValue(bar.maximum() / 2);
  const int place = bar.value();
  ASSERT_GT(place, 0);
  screens.kelmo().controls().aktina1.Value(137);
  screens.kelmo().drawingArea()->repaint();
  QApplication::processEvents();
  EXPECT_TRUE(text().contains("137"));
  expectThingsOf(screens.kelmo());
  EXPECT_EQ(bar.value(), place);
}

TEST_F(HelpTest, EscapeClosesItAndTheScreenGoesOn) {
  open(screens.kelmo());
  ASSERT_NE(QApplication::focusWidget(), nullptr);
  EXPECT_EQ(QApplication::focusWidget()->window(), window());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(window()->isVisible());
  EXPECT_TRUE(screens.kelmo().isVisible());
  QApplication::processEvents();
  EXPECT_EQ(QApplication::activeWindow(), &screens.kelmo());
}

TEST_F(HelpTest, HasNamesInTwoLanguagesAndFitsTheDisplay) {
  open(screens.kelmo());
  EXPECT_EQ(window()->windowTitle(), "Βοήθεια · Help");
  EXPECT_EQ(window()->accessibleName(), "Βοήθεια · Help");
  EXPECT_EQ(browser().accessibleName(), "Κείμενο βοήθειας · Help text");
  EXPECT_TRUE(window()->screen()->availableGeometry().contains(window()->geometry()));
  EXPECT_EQ(browser().horizontalScrollBar()->maximum(), 0) << "the words wrap";
}

TEST_F(HelpTest, StandsBesideTheIbnSahlWindowWhereThereIsRoom) {
  screens.openLensMenu();
  screens.eisagogiko().controls().Command1.click();
  screens.ElSahl().resize(400, 400);
  QApplication::processEvents();
  open(screens.ElSahl());
  const QRect help = window()->frameGeometry();
  const QRect sahl = screens.ElSahl().frameGeometry();
  EXPECT_FALSE(help.intersects(sahl))
      << help.x() << ' ' << help.y() << ' ' << help.width() << ' ' << help.height() << " and "
      << sahl.x() << ' ' << sahl.y() << ' ' << sahl.width() << ' ' << sahl.height();
}

}  // namespace
}  // namespace lensbench
