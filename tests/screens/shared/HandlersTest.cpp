// Which action is running, for the sentence of an error.
#include <gtest/gtest.h>

#include "canvas/RuntimeError.h"
#include "canvas/qt/MenuEntry.h"
#include "canvas/qt/ScrollBar.h"
#include "screens/Handlers.h"

namespace lensbench {
namespace {

class Screen : public Form {
 public:
  explicit Screen(Actions& actions) : Form(FormDesign{}), actions_(actions) {
    setWindowTitle("SCREEN");
    describe(bar, "Ακτίνα · Radius", {});
    on(actions, bar, &ScrollBar::Change, *this, &Screen::bar_Change);
    on(actions, entry, &MenuEntry::Click, *this, &Screen::entry_Click);
    on<Form>(actions, *this, &Form::CloseBox, *this, &Screen::closed);
  }

  void bar_Change() { seen << actions_.current(); }
  void entry_Click() {
    bar.Value(7);
    seen << actions_.current();
    throwOverflow();
  }
  void closed() { seen << actions_.current(); }

  ScrollBar bar{*this, "aktina1", Qt::Horizontal, {0, 0, 1500, 300}};
  MenuEntry entry{*this, "SAHLIC", "IBN SAHL"};
  QStringList seen;

 private:
  Actions& actions_;
};

TEST(Actions, AreNamedWhileTheyRunByControlEntryOrForm) {
  Actions actions;
  Screen screen(actions);
  EXPECT_EQ(actions.current(), "");
  screen.bar.Value(5);
  screen.close();
  EXPECT_EQ(screen.seen, QStringList({"Ακτίνα · Radius", "SCREEN"}));
  EXPECT_EQ(actions.current(), "");
}

TEST(Actions, AnErrorLeavesTheNameOfTheActionThatMetIt) {
  Actions actions;
  Screen screen(actions);
  EXPECT_THROW(screen.entry_Click(), RuntimeError);
  EXPECT_EQ(actions.current(), "");
  EXPECT_THROW(emit screen.entry.Click(), RuntimeError);
  // One handler inside the other, and back.
  EXPECT_EQ(screen.seen, QStringList({"Ακτίνα · Radius", "", "IBN SAHL"}));
  EXPECT_EQ(actions.current(), "IBN SAHL");
}

TEST(Actions, TellTheEndOfTheOutermostOne) {
  Actions actions;
  Screen screen(actions);
  std::vector<std::string> told;
  actions.watchBy([&](By by) {
    EXPECT_FALSE(actions.running());
    told.emplace_back(by == By::Hand ? "hand" : "itself");
  });
  screen.bar.Value(5);
  EXPECT_EQ(told, std::vector<std::string>{"hand"});
  {
    const ActionScope outer(actions, screen, By::Itself);
    EXPECT_TRUE(actions.running());
    screen.bar.Value(6);
  }
  EXPECT_EQ(told, (std::vector<std::string>{"hand", "itself"}));
  // An error is no end.
  EXPECT_THROW(emit screen.entry.Click(), RuntimeError);
  EXPECT_EQ(told.size(), 2u);
  EXPECT_FALSE(actions.running());
}

}  // namespace
}  // namespace lensbench
