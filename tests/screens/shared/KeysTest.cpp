// The table of keys.
#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QRegularExpression>
#include <QSet>

#include "screens/Keys.h"

namespace lensbench {
namespace {

const Key* pressed(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  const QKeyEvent event(QEvent::KeyPress, key, modifiers);
  return keyOf(event);
}

TEST(Keys, EachCombinationMeansOneThingAndEachRowSaysItInGreekAndEnglish) {
  const QRegularExpression greek("[\\x{0370}-\\x{03FF}]{3}");
  const QRegularExpression english("[a-z]{3}");
  QSet<int> combinations;
  for (const Key& key : keys()) {
    SCOPED_TRACE(key.name);
    EXPECT_FALSE(key.combinations.empty());
    for (const QKeyCombination& combination : key.combinations) {
      EXPECT_FALSE(combinations.contains(combination.toCombined()));
      combinations << combination.toCombined();
    }
    EXPECT_TRUE(QString::fromUtf8(key.greek).contains(greek));
    EXPECT_TRUE(QString::fromUtf8(key.greek).endsWith('.'));
    EXPECT_TRUE(QString::fromUtf8(key.english).contains(english));
    EXPECT_TRUE(QString::fromUtf8(key.english).endsWith('.'));
    EXPECT_FALSE(QString::fromUtf8(key.english).contains(greek));
  }
}

TEST(Keys, AKeyIsFoundWithItsModifiersAlone) {
  ASSERT_NE(pressed(Qt::Key_Z, Qt::ControlModifier), nullptr);
  EXPECT_EQ(pressed(Qt::Key_Z, Qt::ControlModifier)->command, Command::Undo);
  EXPECT_EQ(pressed(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier)->command, Command::Redo);
  EXPECT_EQ(pressed(Qt::Key_Z), nullptr);
  EXPECT_EQ(pressed(Qt::Key_F1, Qt::ShiftModifier), nullptr);
  EXPECT_EQ(pressed(Qt::Key_Space, Qt::AltModifier), nullptr);
  EXPECT_EQ(pressed(Qt::Key_F3), nullptr);
}

TEST(Keys, TheNumberPadCountsAsWell) {
  EXPECT_EQ(pressed(Qt::Key_Enter, Qt::KeypadModifier)->command, Command::Enter);
  EXPECT_EQ(pressed(Qt::Key_Period, Qt::KeypadModifier)->command, Command::StepForward);
  EXPECT_EQ(pressed(Qt::Key_Left, Qt::KeypadModifier | Qt::ControlModifier)->command,
            Command::MoveFine);
}

}  // namespace
}  // namespace lensbench
