// The spherical-lenses workbench: lens parameters, source, diaphragm, rays, bundles and waves.
#pragma once

#include <functional>

#include "canvas/Variant.h"
#include "canvas/qt/Form.h"
#include "screens/Moves.h"
#include "screens/kelmo/Drag.h"
#include "screens/kelmo/KelmoControls.h"
#include "screens/kelmo/WaveAnimation.h"
#include "screens/kelmo/WorkbenchView.h"

namespace lensbench {

class kelmo : public Form {
 public:
  explicit kelmo(Moves& moves);

  KelmoControls& controls() { return controls_; }
  poreiaaktinon::Workbench& workbench() { return workbench_; }
  const WaveAnimation& animation() const { return animation_; }

  // arxinizo: reads the scene's state from the controls and draws the lens scene over what is
  // there.
  void arxinizo();
  // drawBundle: clears, draws the scene and a bundle of parallel rays at an angle in radians.
  void drawBundle(const Variant& angle);
  // drawWaveScene: clears and draws what stands under moving waves.
  void drawWaveScene();
  // Bundles at the fixed angles -1 and +1 radian.
  void desmiMinusOne();
  void desmiPlusOne();
  // Turns "SHOW WAVES AND RAYS" on when it is off, and off when it is on.
  void flipCheck1();
  // Ends the program.
  void end();

  // Handlers, named after control and event.
  void Form_Load();
  void Form_Click();
  void Form_MouseDown(int Button, int Shift, double X, double Y);
  void Form_MouseMove(int Button, int Shift, double X, double Y);
  void Form_MouseUp(int Button, int Shift, double X, double Y);
  void aktina1_Change();
  void aktina2_Change();
  void kentrokykloy_Change();
  void kentrokykloy2_Change();
  void deiktisdiathlasis_Change();
  void arvimaton_Change();
  void desmi1_Change();
  void HScroll1_Change();
  void VScroll1_Change();
  void VScroll2_Change();
  void Check1_Click();
  void Check2_Click();
  void singleray_Click();
  void EPANALIPSI_Click();
  void SAHLIC_Click();
  void parallilakymata_Click();
  void kymatachronika_Click();
  void TELIOMA_Click();
  void Timer1_Timer();
  void Timer2_Timer();

  Variant R1;     // radius of the left circle, user units
  Variant R2;     // radius of the right circle, user units
  Variant xc1;    // centre of the left circle on the axis, user units
  Variant xc2;    // centre of the right circle on the axis, user units
  Variant n;      // index of refraction
  Variant vima;   // step between the rays of a fan, degrees
  Variant xpigi;  // light source, user units
  Variant ypigi;
  Variant gonia;  // angle of the last bundle with the horizontal, radians

 private:
  // The interval of waves that are running, ms: as fast as they can be seen.
  static constexpr int runningInterval = 1;

  void connectHandlers();
  void resized();
  // Scale, source and blades as at the start, and the first drawing.
  void placeScene();
  void reloadLens();
  void clearAndDraw();
  // Clears the picture; what an animation had drawn on it is gone with it.
  void clear();
  Variant fanStep() const;

  // Where the three sliders put the diaphragm.
  poreiaaktinon::Diafragma diaphragmOfSliders() const;
  // Puts the blades there and writes the opening and the abscissa.
  void placeDiaphragm(const poreiaaktinon::Diafragma& diafragma);
  // The sliders go to the value nearest to where the blades stand, without moving them.
  void slidersFollowBlades();

  void startFan(double X, double Y);
  void prepareWavesInTime();
  // The radius that the bar of a dragged edge gets when the mouse is at abscissa X.
  int draggedRadius(const ScrollBar& bar, const Variant& centre, double X) const;
  void showDraggedEdge(double centre, int radius);
  // Writes a lens scroll bar, whose handler redraws; redraws all the same when nothing changed.
  void setLensValue(ScrollBar& bar, int value);

  RaySet bundle(const Variant& angle);
  RaySet fan();
  void startWaves(Timer& own, Timer& other, RaySet set);
  void waveTick(Timer& timer);

  Moves& moves_;
  KelmoControls controls_;
  WorkbenchView workbench_;
  WaveAnimation animation_;
  Grab grabbed_ = Grab::None;
  double grabbedX_ = 0.0;                      // where the mouse took it, user units
  poreiaaktinon::Diafragma grabbedDiaphragm_;  // as it was when the mouse took it
  Variant ticks_;                              // tick counter, the time index of the waves
};

}  // namespace lensbench
