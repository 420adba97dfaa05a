// The lens menu: which kind of lens, and the index of refraction of the hyperbolic ones.
#pragma once

#include "canvas/qt/Form.h"
#include "screens/Context.h"
#include "screens/eisagogiko/MenuControls.h"
#include "screens/eisagogiko/MenuState.h"

namespace lensbench {

class eisagogiko : public Form {
 public:
  explicit eisagogiko(const Context& context);

  MenuControls& controls() { return controls_; }

  // The screen as a value, and as it was, without a handler that runs.
  MenuState state() const;
  void restore(const MenuState& state);

  // Handlers, named after control and event.
  void Form_Load();
  void deiktissahl_Change();
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void connectHandlers();
  double index() const;
  // Has the Ibn Sahl screen draw one of the lenses with a fan from its first source; for an index
  // below 1 a message, and nothing is drawn.
  void openLens(bool biconvex);

  Context context_;
  MenuControls controls_;
};

}  // namespace lensbench
