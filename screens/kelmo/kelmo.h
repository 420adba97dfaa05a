// The spherical-lenses workbench: lens parameters, source, diaphragm, rays, bundles and waves.
#pragma once

#include <optional>

#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Picture.h"
#include "screens/DrawingScreen.h"
#include "screens/Easel.h"
#include "screens/LiveSource.h"
#include "screens/kelmo/Drag.h"
#include "screens/kelmo/KelmoControls.h"
#include "screens/kelmo/KelmoState.h"

namespace lensbench {

class kelmo : public DrawingScreen {
 public:
  explicit kelmo(const Context& context);

  KelmoControls& controls() { return controls_; }
  const poreiaaktinon::Shown& shown() const { return easel_.shown(); }
  // The rays that carry the moving waves; a tick without them moves nothing.
  const std::optional<poreiaaktinon::Sent>& set() const { return set_; }

  // What the controls say; lengths in user units.
  double R1() const { return controls_.aktina1.Value(); }         // radius of the left circle
  double R2() const { return controls_.aktina2.Value(); }         // radius of the right circle
  double xc1() const { return controls_.kentrokykloy2.Value(); }  // centre of the left circle
  double xc2() const { return controls_.kentrokykloy.Value(); }   // centre of the right circle
  double n() const { return controls_.deiktisdiathlasis.Value() / 100.0; }  // index of refraction
  double vima() const;                                    // step between the rays of a fan, degrees
  double xpigi() const { return controls_.pigi.Left(); }  // light source
  double ypigi() const { return controls_.pigi.Top(); }
  Point pigi() const { return {xpigi(), ypigi()}; }
  poreiaaktinon::Fakos fakos() const { return {xc1(), R1(), xc2(), R2()}; }
  poreiaaktinon::Diafragma diafragma() const;
  poreiaaktinon::Bench bench() const { return {fakos(), n(), diafragma()}; }
  poreiaaktinon::Provoli provoli() const;

  // arxinizo: the lens scene as the controls say, over what is there.
  void arxinizo();
  // drawBundle: clears, then the scene and a bundle of parallel rays at an angle in radians.
  void drawBundle(Variant angle);
  // drawWaveScene: clears, then what stands under moving waves.
  void drawWaveScene();
  // Bundles at the fixed angles -1 and +1 radian.
  void desmiMinusOne();
  void desmiPlusOne();
  // Turns "SHOW WAVES AND RAYS" on when it is off, and off when it is on.
  void flipCheck1();
  // Ends the program.
  void end();

  // The screen as a value, and as it was: quietly, without a handler, a message or an error, fitted
  // to the window as it is now.
  KelmoState state() const;
  void restore(const KelmoState& state);
  // What stands on the picture, or stood there before it was wiped, once more with the values of
  // the controls.
  void repeat() override;

  // What can be taken; the ids are those of Grab.
  std::vector<Thing> things() const override;
  std::optional<int> takenAt(Point p) const override;
  std::optional<Answer> ask(Point p, double reach) const override;
  void put(int thing, Point p) override;
  bool leaveDrag() override;
  QString inWords() const override;
  void enter(int thing) override;
  bool pauseWaves() override;
  bool stepWaves(int steps) override;
  bool restartWaves() override;

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

  Variant gonia;  // angle of the last bundle with the horizontal, radians

 protected:
  // There is no screen before this one; its close box ends the program, which no key shall do.
  void goBack() override {}

 private:
  void connectHandlers();
  void resized();
  light::Edges edges() const { return light::edgesOf(canvas()); }

  poreiaaktinon::Standing standing() const { return {shown(), set_}; }
  void showStanding(poreiaaktinon::Standing standing);
  poreiaaktinon::Values values() const;
  bool following() const;
  // While following, what stands on the picture is repeated, in a run too.
  void followValues();

  // Empties the picture and drops the set.
  void clear();
  void add(poreiaaktinon::Layer layer);
  void clearAndDraw();
  // Leaves the lens scene alone, or in a run the waves for the present values.
  void wipe();
  // After a change of the lens or the diaphragm: the same, or, while following, what stands there.
  void drawAnew();

  void placeSource(Point source);
  // Where the three sliders put the diaphragm.
  poreiaaktinon::Diafragma diaphragmOfSliders() const;
  // Puts the blades there and writes the opening and the abscissa.
  void placeDiaphragm(const poreiaaktinon::Diafragma& diafragma);
  // The sliders go to the value nearest to where the blades stand, without moving them.
  void slidersFollowBlades();
  // The diaphragm as one lets it go there, sliders and picture with it.
  void moveDiaphragm(const poreiaaktinon::Diafragma& diafragma);
  // What wheel and keyboard do in the boxes.
  void connectBoxes();
  // Has the entry of the waves in time say that there are too many rays for it.
  void warnOfWaves();

  // A thing that the mouse holds from a press to the release.
  struct Drag {
    Grab grab = Grab::None;
    Point taken;                         // where the press took it, user units
    Point at;                            // where the mouse is
    poreiaaktinon::Diafragma diafragma;  // as it was when it was taken
    Point pigi;                          // likewise
  };
  Grab grabbedAt(Point p) const;
  // A press that takes this there.
  void take(Grab grab, Point p);
  Room room() const;
  void showDrag();
  void placeDragged();
  // The lens as it would be if the drag ended here.
  poreiaaktinon::Fakos draggedLens() const;
  // While following, what stands on the picture goes with the drag.
  void followDrag();
  // Whether a press there with Shift sends a fan.
  bool sendsFan(Point p) const;
  // The fan that the press sent is sent from p instead, if the pointer drags it and a press there
  // would send one.
  void moveLive(Point p);
  // All is as it was before the press whose fan was dragged.
  void dropLive();
  void showDraggedEdge(double centre, int radius);
  // Lets go what stands where it is seen.
  void release(const Drag& drag);
  // The drag is over, its previews are gone.
  Drag endDrag();
  // Ends a drag without a release: nothing is changed.
  void dropDrag();
  // The radius that the bar of a dragged edge gets.
  static int draggedRadius(const Drag& drag, const ScrollBar& bar, double centre);
  // Writes a lens scroll bar, whose handler redraws; redraws all the same when nothing changed.
  void setLensValue(ScrollBar& bar, int value);

  void startFan(Point source);
  // A fan that moves as waves starts where the source stands now.
  void moveFan();
  void prepareWavesInTime();
  // Sends rays over what is there; they are the set of moving waves, unless they are too many.
  void sendRays(const poreiaaktinon::Rays& rays);
  void startWaves(const poreiaaktinon::Rays& rays);
  void waveTick(Timer& timer, MenuEntry& entry);
  // The fronts of the present step; the white scene under them follows the controls.
  void showFronts();
  // Waves that met a dragged blade go on, or stand, as through the diaphragm before.
  void passFronts(const poreiaaktinon::Diafragma& before);
  bool showsWaveScene() const;
  // True while a timer that a wave entry started moves the waves on their white scene.
  bool running() const;
  // True in a run that stands still until it goes on; its timer ticks all the same.
  bool paused() const;
  void endRun();

  KelmoControls controls_;
  Easel<poreiaaktinon::Shown> easel_;
  std::optional<poreiaaktinon::Sent> set_;
  std::optional<poreiaaktinon::Standing> wiped_;  // what was cleared last, more than a lens alone
  Drag drag_;
  KelmoState beforePress_;          // of the mouse, as a drag that is left puts it back
  bool desmiBeforePress_ = false;   // likewise, desmiMode
  std::optional<LiveSource> live_;  // from a press that sent a fan to its release
  int ticks_ = 0;                   // tick counter, the time index of the waves
};

}  // namespace lensbench
