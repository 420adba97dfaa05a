// The Ibn Sahl screen: a hyperbolic lens, its source or bundle, its wavefronts and its diaphragm.
#pragma once

#include <optional>

#include "canvas/qt/Form.h"
#include "optics/protosfakos/Hyperbola.h"
#include "screens/ElSahl/Edges.h"
#include "screens/ElSahl/SahlControls.h"
#include "screens/ElSahl/SahlView.h"
#include "screens/Moves.h"

namespace lensbench {

class ElSahl : public Form {
 public:
  explicit ElSahl(Moves& moves);

  SahlControls& controls() { return controls_; }
  protosfakos::SahlScreen& view() { return view_; }

  // What the lens menu does to this screen before it draws: a square window at the upper-left
  // corner of the display, two thirds of the display high, shown with the scale of the lenses and
  // the edges of the diaphragm at x = 130.
  void prepare();
  // Both edges of the diaphragm at this abscissa, open from -10 to 10, user units.
  void strokesAt(double x);

  // Handlers, named after control and event.
  void Form_Load();
  void Form_MouseDown(int Button, int Shift, double X, double Y);
  void Form_MouseMove(int Button, int Shift, double X, double Y);
  void Form_MouseUp(int Button, int Shift, double X, double Y);
  void kymataYESNO_Click();
  void RAYSANDWAVES_Click();
  void kymatikosahl_Click();
  void parallilidesmifotos_Click();
  void BACKKELMO_Click();
  void TELOS_Click();

  bool syromenigrammi1 = false;  // syromeni grammi: the upper edge is being dragged
  bool syromenigrammi2 = false;  // the lower edge is being dragged

 private:
  void connectHandlers();
  void touched() { openingIndex_.reset(); }
  void resized();
  void setScale();
  // Sets the scale of the lenses where a resized window has another, and says where p, a point of
  // that scale, now is. Nothing is rounded where the scale holds already.
  Point inLensScale(Point p);
  void placeEdges(const protosfakos::Diafragma& diafragma);
  Reach reach() const;
  void dragTo(Point p);
  // Takes the hint away, which would only cover the picture.
  void hintUsed();
  // The fan from the stored source through the lens that is shown, over what is there.
  void drawFan(const protosfakos::HyperbolaAxes& lens);
  // The same on a cleared picture; for an index below 1 the picture stays as it is.
  void redrawFan();
  // The lens of the present index; for an index below 1 none, and the message is shown.
  static std::optional<protosfakos::HyperbolaAxes> lensOr(const QString& message);

  Moves& moves_;
  SahlControls controls_;
  SahlView view_;
  protosfakos::Diafragma atPress_;  // as the diaphragm was when the mouse took an edge
  // The index of refraction the screen was opened with, until something is done by hand.
  std::optional<Variant> openingIndex_;
};

}  // namespace lensbench
