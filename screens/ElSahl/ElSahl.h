// The Ibn Sahl screen: a hyperbolic lens, its source or bundle, its wavefronts and its diaphragm.
#pragma once

#include "optics/protosfakos/Picture.h"
#include "screens/DrawingScreen.h"
#include "screens/Easel.h"
#include "screens/ElSahl/Edges.h"
#include "screens/ElSahl/SahlControls.h"
#include "screens/ElSahl/SahlState.h"
#include "screens/LiveSource.h"

namespace lensbench {

class ElSahl : public DrawingScreen {
 public:
  // What can be taken or placed, as ids of things.
  enum Taken { Source, UpperEdge, LowerEdge };

  explicit ElSahl(const Context& context);

  SahlControls& controls() { return controls_; }
  const protosfakos::Shown& shown() const { return easel_.shown(); }

  // What the lens menu does to this screen before it draws: a square window at the upper-left
  // corner of the display, two thirds of the display high and no wider than it, shown with the
  // scale of the lenses and the edges of the diaphragm at x = 130.
  void prepare();
  // Clears and draws the fan of the shared source through the shared lens.
  void drawFan();
  // Clears and draws a bundle at an angle with the horizontal, degrees, through the shared lens.
  void drawBundle(double degrees);
  // Both edges of the diaphragm at this abscissa, open from -10 to 10, user units.
  void strokesAt(double x);
  light::Diafragma diafragma() const;
  // The fan of the shared source, as it would be drawn now.
  protosfakos::Asked askedFan() const;

  // The screen as a value, and as it was: quietly, without a handler, a message or an error.
  SahlState state() const;
  void restore(const SahlState& state);
  // What stands on the picture once more, with the shared lens and source, and with the diaphragm
  // and the options as they are.
  void repeat() override;
  // The same while following; false where nothing follows.
  bool followValues();

  std::vector<Thing> things() const override;
  // The edges; elsewhere the mouse places the source anew.
  std::optional<int> takenAt(Point p) const override;
  std::optional<Answer> ask(Point p, double reach) const override;
  void put(int thing, Point p) override;
  bool leaveDrag() override;
  QString inWords() const override;
  void enter(int thing) override;

  // Handlers, named after control and event.
  void Form_Load();
  void Form_MouseDown(int Button, int Shift, double X, double Y);
  void Form_MouseMove(int Button, int Shift, double X, double Y);
  void Form_MouseUp(int Button, int Shift, double X, double Y);
  void kymataYESNO_Click();
  void RAYSANDWAVES_Click();
  void onlyrays_Click();
  void kymatikosahl_Click();
  void parallilidesmifotos_Click();
  void BACKKELMO_Click();
  void TELOS_Click();

  bool syromenigrammi1 = false;  // syromeni grammi: the upper edge is being dragged
  bool syromenigrammi2 = false;  // the lower edge is being dragged

 private:
  void showPointer(Qt::CursorShape shape) override;
  void connectHandlers();
  // The box of the lenses whole in the middle of the drawing area, with the ratio of the units that
  // the window opens with.
  void fitScale();
  void resized();
  void clear();
  // Marks at the edge of the drawing area for what stands beyond it.
  void followWithMarks();
  void placeEdges(const light::Diafragma& diafragma);
  Reach reach() const;
  bool dragging() const { return syromenigrammi1 || syromenigrammi2; }
  // Holds what a press takes: an edge, or nothing.
  void take(std::optional<int> thing);
  // Draws the fan of a source there.
  void placeSource(Point p);
  void dragTo(Point p);
  // The fan that the press sent is sent from p instead, if the pointer drags it and a press there
  // would send one.
  void moveLive(Point p);
  // All is as it was before the press.
  void putBack();
  // The edges go back to where they were taken, and the fan to what was before it.
  void dragEnded();
  // Takes the hint away, which would only cover the picture.
  void hintUsed();
  protosfakos::Asked asked(const protosfakos::Rays& rays) const;
  // The scene, over what is there.
  protosfakos::Scene drawOver(const protosfakos::Asked& asked);
  void push(protosfakos::Layer layer);
  bool hasLens() const;
  // For an index below 1 false, and the message is shown.
  bool hasLensOr(const QString& message);

  SahlControls controls_;
  Easel<protosfakos::Shown> easel_{*this};
  SahlState beforePress_;              // of the mouse, as a drag that is left puts it back
  Variant pigiXBefore_, pigiYBefore_;  // likewise, the shared source
  bool onlyWavesBefore_ = false;       // likewise, onlyWavesAsked
  std::optional<LiveSource> live_;     // from a press that sent a fan to its release
  light::Diafragma atPress_;           // as the diaphragm was when the mouse took an edge
  double side_ = 0.0;                  // of the window with its frame, as it opens, twips
  QSizeF opening_ = canvas().size();   // of the drawing area then, logical pixels
};

}  // namespace lensbench
