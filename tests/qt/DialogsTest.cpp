#include <functional>
#include <gtest/gtest.h>

#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "canvas/qt/Dialogs.h"
#include "canvas/qt/Form.h"
#include "canvas/qt/Timer.h"

namespace lensbench {
namespace {

// Does something with the box that is open next, as soon as it is.
template <typename Box>
void withNextBox(std::function<void(Box&)> act) {
  auto* poll = new QTimer(qApp);
  QObject::connect(poll, &QTimer::timeout, [poll, act] {
    auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    poll->deleteLater();
    poll->stop();
    act(*box);
  });
  poll->start(5);
}

class Boxes : public testing::Test {
 protected:
  QtClock clock;
  QtDialogs dialogs{clock};
};

TEST_F(Boxes, AMessageBoxShowsItsTextUnderTheProgramsName) {
  QString title, text;
  withNextBox<QMessageBox>([&](QMessageBox& box) {
    title = box.windowTitle();
    text = box.text();
    box.accept();
  });
  dialogs.MsgBox("  ARNHTIKO");
  EXPECT_EQ(title, "Lens Bench");
  EXPECT_EQ(text, "  ARNHTIKO");
}

TEST_F(Boxes, AnInputBoxGivesWhatWasEnteredOrNothing) {
  withNextBox<QInputDialog>([](QInputDialog& box) {
    EXPECT_EQ(box.windowTitle(), "Angle");
    EXPECT_EQ(box.textValue(), "0");
    box.setTextValue("22,5");
    box.accept();
  });
  EXPECT_EQ(dialogs.InputBox("Degrees?", "Angle", "0"), std::optional<QString>("22,5"));
  withNextBox<QInputDialog>([](QInputDialog& box) {
    box.setTextValue("");
    box.accept();
  });
  EXPECT_EQ(dialogs.InputBox("Degrees?", "", "0"), std::optional<QString>(""));
  withNextBox<QInputDialog>([](QInputDialog& box) { box.reject(); });
  EXPECT_EQ(dialogs.InputBox("Degrees?", "", "0"), std::nullopt);
}

TEST_F(Boxes, ACriticalBoxShowsAllItsWords) {
  QString text, informative;
  QMessageBox::Icon icon{};
  withNextBox<QMessageBox>([&](QMessageBox& box) {
    text = box.text();
    informative = box.informativeText();
    icon = box.icon();
    box.accept();
  });
  dialogs.Critical("", "Error 11: Division by zero", "It happened.");
  EXPECT_EQ(text, "Error 11: Division by zero");
  EXPECT_EQ(informative, "It happened.");
  EXPECT_EQ(icon, QMessageBox::Critical);
}

TEST_F(Boxes, TimersDoNotTickBehindABox) {
  Form form{FormDesign{}};
  Timer timer(form, "Timer1", clock);
  int ticks = 0;
  QObject::connect(&timer, &Timer::Tick, [&] { ++ticks; });
  timer.Interval(17);
  withNextBox<QMessageBox>([&](QMessageBox& box) {
    QTest::qWait(120);
    EXPECT_EQ(ticks, 0);
    box.accept();
  });
  dialogs.MsgBox("…");
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 0; }, 2000));
}

}  // namespace
}  // namespace lensbench
