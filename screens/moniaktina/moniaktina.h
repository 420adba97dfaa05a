// The single-ray screen: one spherical lens and one ray through it, from a source that the mouse
// places and aims.
#pragma once

#include "canvas/Variant.h"
#include "optics/poreiaaktinon/SingleRayPicture.h"
#include "screens/DrawingScreen.h"
#include "screens/Easel.h"
#include "screens/moniaktina/MoniaktinaControls.h"
#include "screens/moniaktina/MoniaktinaState.h"

namespace lensbench {

class moniaktina : public DrawingScreen {
 public:
  // What can be placed, as ids of things.
  enum Placed { Source, Aim };

  explicit moniaktina(const Context& context);

  MoniaktinaControls& controls() { return controls_; }
  const poreiaaktinon::single::Shown& shown() const { return easel_.shown(); }

  // Fills the display and puts the origin in the middle of the client area, which is 1200 units
  // wide and high together; a unit is as long in x as in y.
  void fitDisplay();
  // The lens as the scroll bars set it.
  void drawLens();
  // sxediasifakoy (draw lens): clears, and draws the faces and focal points of two circles on the
  // axis, of radius R1 at xc1 and of radius R2 at xc2, user units, with the index last read.
  void sxediasifakoy(Variant R1, Variant R2, Variant xc1, Variant xc2);
  // miaaktina (one ray): draws the lens of the scroll bars and the ray from the source, whose
  // centre (xs, ys) is, towards (xa, ya); user units.
  void miaaktina(float xs, float ys, float xa, float ya);

  // The screen as a value, and as it was: quietly, without a handler, a message or an error, fitted
  // to the window as it is now.
  MoniaktinaState state() const;
  void restore(const MoniaktinaState& state);
  // The ray that stands on the picture, or the last one that was sent by hand, once more with the
  // values of the controls.
  void repeat() override;

  std::vector<Thing> things() const override;
  // Nothing: wherever the mouse is pressed it places the source anew.
  std::optional<int> takenAt(Point p) const override;
  std::optional<Answer> ask(Point p, double reach) const override;
  void put(int thing, Point p) override;
  bool leaveDrag() override;
  QString inWords() const override;
  void enter(int thing) override;

  // Why a ray that is aimed there should not be let go: a pixel to either side, exactly above or
  // below the source, its slope is not defined. Greek line and English line, empty elsewhere.
  QString warning(Point aim) const;

  // Handlers, named after control and event.
  void Form_Load();
  void Form_MouseDown(int Button, int Shift, double X, double Y);
  void Form_MouseMove(int Button, int Shift, double X, double Y);
  void Form_MouseUp(int Button, int Shift, double X, double Y);
  void aktina1_Change();
  void aktina2_Change();
  void kentrokykloy_Change();
  void deiktisdiathlasis_Change();
  void Command1_Click();

  Variant aktinaR1;  // radius of circle 1, user units
  Variant aktinaR2;  // radius of circle 2, user units
  Variant kentro1;   // centre of circle 1 on the axis, always 0
  Variant kentro2;   // centre of circle 2 on the axis, user units
  Variant deiktis;   // index of refraction

 private:
  void connectHandlers();
  void dragEnded();
  void resized();
  void lensChanged();
  // Draws over what is there.
  void push(poreiaaktinon::single::Layer layer);
  // Where the last ray was sent by hand, or before the first one half way to the origin.
  Point aim() const;
  // Clears and draws the ray from the source towards a point, with the line of its aim.
  void sendRay(Point aim);
  // The same, unless there is no aim or it is straight above or below the source; false then.
  bool sendAgain(const std::optional<Point>& aim);
  // While following, the ray that stands on the picture is sent again; false where none is.
  bool followValues();

  // What wheel and keyboard do in the boxes.
  void connectBoxes();
  // Why the lens has no outline with another value of one bar.
  poreiaaktinon::single::NoOutline withRadius1(int R1) const;
  poreiaaktinon::single::NoOutline withRadius2(int R2) const;
  poreiaaktinon::single::NoOutline withCentre(int centre) const;
  // Has the bars say which of their values end the program, and the line of the aim where it does.
  void warnOfLens();
  void warnOfAim(Point aim);

  MoniaktinaControls controls_;
  Easel<poreiaaktinon::single::Shown> easel_{*this};
  std::optional<Point> aimed_;   // where the last ray was sent by hand
  MoniaktinaState beforePress_;  // of the mouse, as a drag that is left puts it back
};

}  // namespace lensbench
