// What an input box says of the answer while it is typed.
#include <functional>
#include <gtest/gtest.h>
#include <vector>

#include <QApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "canvas/qt/AnswerLine.h"
#include "canvas/qt/Clock.h"
#include "canvas/qt/Contrast.h"
#include "canvas/qt/Dialogs.h"

namespace lensbench {
namespace {

const QString workbench = QStringLiteral("Give angle with horizontal direction: -90<φ<90");
const QString ibnSahl = QStringLiteral("DIRECTION IN  RESPECT TO HORIZONTAL");

class AnswerLines : public testing::Test {
 protected:
  // Acts on the box as it stands open, and accepts it.
  std::optional<QString> ask(const QString& prompt,
                             const std::function<void(QLineEdit&, const QLabel&)>& act) {
    QTimer::singleShot(0, qApp, [act] {
      auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      act(*box->findChild<QLineEdit*>(), *box->findChild<QLabel*>("answerLine"));
      box->accept();
    });
    return dialogs.InputBox(prompt, "Angle", "0");
  }

  QtClock clock;
  QtDialogs dialogs{clock};
};

void type(QLineEdit& field, const QString& text) {
  field.selectAll();
  QTest::keyClick(&field, Qt::Key_Delete);
  // One character after the other, as keys bring them.
  for (const QChar character : text) {
    QKeyEvent press(QEvent::KeyPress, 0, {}, QString(character));
    QApplication::sendEvent(&field, &press);
  }
}

TEST_F(AnswerLines, SayWhetherItIsANumberWithinTheRangeOfThePrompt) {
  const QString within = "✓ Αριθμός ανάμεσα στο -90 και το 90.\n✓ A number between -90 and 90.";
  const QString outside =
      "Όχι ανάμεσα στο -90 και το 90, αλλά γίνεται δεκτός.\n"
      "Not between -90 and 90, but taken all the same.";
  const QString none =
      "Δεν είναι αριθμός· αν το δώσεις, το πρόγραμμα τελειώνει.\n"
      "Not a number; giving it ends the program.";
  ask(workbench, [&](QLineEdit& field, const QLabel& line) {
    EXPECT_EQ(line.text(), within);
    for (const auto& [typed, words] : std::vector<std::pair<QString, QString>>{{"22,5", within},
                                                                               {"-89.999", within},
                                                                               {"−30°", within},
                                                                               {"90", outside},
                                                                               {"-90", outside},
                                                                               {"120", outside},
                                                                               {"", none},
                                                                               {"abc", none},
                                                                               {"-", none},
                                                                               {"45°°", none}}) {
      type(field, typed);
      EXPECT_EQ(line.text(), words) << typed.toStdString();
      EXPECT_EQ(field.accessibleDescription(), words);
      EXPECT_EQ(line.accessibleName(), words);
    }
    type(field, "1e999");
    EXPECT_EQ(line.text(),
              "Πολύ μεγάλος αριθμός· αν τον δώσεις, το πρόγραμμα τελειώνει.\n"
              "Too large a number; giving it ends the program.");
  });
}

TEST_F(AnswerLines, SayWhetherItIsANumberWhereThePromptNamesNoRange) {
  ask(ibnSahl, [&](QLineEdit& field, const QLabel& line) {
    EXPECT_EQ(line.text(), "✓ Είναι αριθμός.\n✓ It is a number.");
    type(field, "1000");
    EXPECT_EQ(line.text(), "✓ Είναι αριθμός.\n✓ It is a number.");
    type(field, "x");
    EXPECT_TRUE(line.text().startsWith("Δεν είναι αριθμός"));
  });
}

TEST_F(AnswerLines, LeaveEveryAnswerPossible) {
  EXPECT_EQ(ask(workbench, [](QLineEdit& field, const QLabel&) { type(field, "120"); }),
            std::optional<QString>("120"));
  EXPECT_EQ(ask(workbench, [](QLineEdit& field, const QLabel&) { type(field, "no"); }),
            std::optional<QString>("no"));
  EXPECT_EQ(ask(workbench, [](QLineEdit& field, const QLabel&) { type(field, ""); }),
            std::optional<QString>(""));
}

TEST_F(AnswerLines, NeitherMoveNorResizeTheBox) {
  ask(workbench, [](QLineEdit& field, const QLabel& line) {
    const QRect box = field.window()->geometry();
    const QRect place = line.geometry();
    EXPECT_GE(line.y(), field.geometry().bottom());
    for (const char* typed : {"abc", "120", "1e999", "", "12"}) {
      type(field, typed);
      QApplication::processEvents();
      EXPECT_EQ(field.window()->geometry(), box) << typed;
      EXPECT_EQ(line.geometry(), place) << typed;
      const QFontMetrics metrics = line.fontMetrics();
      EXPECT_LE(metrics.size(0, line.text()).width(), line.width()) << typed;
      EXPECT_LE(metrics.size(0, line.text()).height(), line.height()) << typed;
    }
  });
}

TEST_F(AnswerLines, AreReadOnTheirBackground) {
  ask(workbench, [](QLineEdit& field, const QLabel& line) {
    for (const char* typed : {"abc", "120", "12"}) {
      type(field, typed);
      const QPalette colours = line.palette();
      EXPECT_GE(contrast(colours.color(QPalette::WindowText), colours.color(QPalette::Window)), 4.5)
          << typed;
    }
  });
}

TEST(RangeInPrompt, IsFoundWhereItIsNamed) {
  const auto range = rangeInPrompt(workbench);
  ASSERT_TRUE(range);
  EXPECT_EQ(range->above, -90.0);
  EXPECT_EQ(range->below, 90.0);
  EXPECT_FALSE(rangeInPrompt(ibnSahl));
  EXPECT_FALSE(rangeInPrompt("5<6"));
}

}  // namespace
}  // namespace lensbench
