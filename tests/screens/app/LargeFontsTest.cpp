// The desktop's own text size: no text of a control is cut, and no control stands on another.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionFrame>

#include "tests/screens/app/Desktops.h"

namespace lensbench {
namespace {

class LargeFonts : public ::testing::TestWithParam<double> {};

::testing::AssertionResult showsItsText(const QWidget& widget) {
  const auto room = [&](QSize needed) {
    if (widget.width() >= needed.width() && widget.height() >= needed.height()) {
      return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure()
           << widget.window()->objectName().toStdString() << '.'
           << widget.objectName().toStdString() << " is " << widget.width() << " x "
           << widget.height() << ", its text needs " << needed.width() << " x " << needed.height();
  };
  const QFontMetrics metrics = widget.fontMetrics();
  if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) {
    QStyleOptionFrame option;
    option.initFrom(box);
    option.lineWidth = box->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, box);
    const QRect inside = box->style()->subElementRect(QStyle::SE_LineEditContents, &option, box);
    constexpr int beside = 2 * 2;  // the toolkit's margin
    return room(widget.size() - inside.size() +
                QSize(metrics.horizontalAdvance(box->text()) + beside, metrics.height()));
  }
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    int longest = 0;
    for (const QString& word : label->text().split(' ')) {
      longest = std::max(longest, metrics.horizontalAdvance(word));
    }
    return room({longest, label->heightForWidth(label->width())});
  }
  if (const auto* button = qobject_cast<const QPushButton*>(&widget)) {
    return room(metrics.boundingRect(QRect(0, 0, 5000, 5000), 0, button->text()).size() +
                QSize(4, 4));
  }
  if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) {
    return room({widget.sizeHint().width(), metrics.height()});
  }
  return ::testing::AssertionSuccess();
}

TEST_P(LargeFonts, AreHonouredWithoutCuttingOrCoveringAnything) {
  const DesktopFont font(GetParam());
  ShownProgram program;
  program.screens.kelmo().controls().desmi1.Value(150);
  program.screens.kelmo().controls().arvimaton.Value(5);
  program.screens.eisagogiko().controls().deiktissahl.Value(250);
  ASSERT_EQ(program.screens.kelmo().width(), 1366);
  ASSERT_EQ(program.screens.moniaktina().width(), 1366);
  for (const Form* form : program.forms()) {
    const QList<QWidget*> controls = controlsOf(*form);
    ASSERT_GE(controls.size(), 3);
    for (const QWidget* one : controls) {
      EXPECT_GE(one->font().pointSizeF(), GetParam());
      EXPECT_TRUE(showsItsText(*one));
      EXPECT_TRUE(form->drawingArea()->rect().contains(one->geometry()))
          << one->objectName().toStdString();
      for (const QWidget* other : controls) {
        // Boxes that stand flush share a border.
        const QRect inner = one->geometry().adjusted(1, 1, -1, -1);
        EXPECT_TRUE(one == other || !inner.intersects(other->geometry().adjusted(1, 1, -1, -1)))
            << form->objectName().toStdString() << ": " << one->objectName().toStdString()
            << " and " << other->objectName().toStdString();
      }
    }
    const QMenuBar& bar = *form->menuBar();
    // Entries without room are in the menu behind the bar's arrow.
    const auto* arrow = bar.findChild<QWidget*>(QStringLiteral("qt_menubar_ext_button"));
    for (QAction* entry : bar.actions()) {
      const QRect place = bar.actionGeometry(entry);
      EXPECT_TRUE(bar.rect().contains(place) || (arrow != nullptr && arrow->isVisible()))
          << entry->text().toStdString();
    }
    if (qEnvironmentVariableIsSet("LENSBENCH_PICTURES")) {
      const_cast<Form*>(form)->grab().save(
          QStringLiteral("%1/%2_%3.png")
              .arg(qEnvironmentVariable("LENSBENCH_PICTURES"), form->objectName())
              .arg(GetParam()));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Points, LargeFonts, ::testing::Values(9.0, 12.0, 16.0, 20.0));

TEST(OrdinaryFont, LeavesTheControlsWhereTheyAreDesigned) {
  ShownProgram program;
  const MoniaktinaControls& ray = program.screens.moniaktina().controls();
  EXPECT_EQ(ray.aktina2.geometry(), QRect(0, 0, 185, 24));
  EXPECT_EQ(ray.kentrokykloy.geometry(), QRect(0, 72, 169, 24));
  EXPECT_EQ(ray.Text5.y(), 0);
  EXPECT_EQ(ray.Text7.geometry().topLeft(), QPoint(168, 72));
  EXPECT_EQ(ray.Text7.height(), 25);
  const MenuControls& menu = program.screens.eisagogiko().controls();
  EXPECT_EQ(menu.deiktissahl.geometry(), QRect(24, 152, 169, 25));
  EXPECT_EQ(menu.Command1.geometry().topLeft(), QPoint(8, 40));
  EXPECT_EQ(menu.Command1.width(), 148);
  EXPECT_EQ(menu.Label1.geometry().topLeft(), QPoint(208, 144));
  EXPECT_EQ(menu.Label1.height(), 49);
  EXPECT_EQ(program.screens.eisagogiko().drawingArea()->size(), QSize(499, 368));
}

}  // namespace
}  // namespace lensbench
