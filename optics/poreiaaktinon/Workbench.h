// What the spherical optics must know of the workbench screen, as a view that the screen
// implements.
#pragma once

#include <functional>

#include "canvas/Canvas.h"

namespace lensbench::poreiaaktinon {

// The opening of the diaphragm: the vertical line x = X is open between yB and yA, user units.
struct Diafragma {
  double X = 0.0;
  double yA = 0.0;  // lower end of the upper blade
  double yB = 0.0;  // upper end of the lower blade
};

// The two circles on the axis y = 0 whose common region is the lens, user units. The left face is
// an arc of circle 2, the right face an arc of circle 1.
struct Fakos {
  double xc1 = 0.0;  // centre of the left circle, circle 1
  double R1 = 0.0;
  double xc2 = 0.0;  // centre of the right circle, circle 2
  double R2 = 0.0;
};

// Which of rays and wave points are drawn for fans and bundles.
struct Provoli {
  bool rays = true;
  bool waves = false;
};

class Workbench {
 public:
  virtual ~Workbench() = default;
  virtual Canvas& canvas() = 0;
  virtual Diafragma diafragma() const = 0;
  // The lens as the scroll bars set it.
  virtual Fakos fakos() const = 0;
  virtual double deiktisdiathlasis() const = 0;  // index of refraction, scroll bar value / 100
  virtual Point pigi() const = 0;                // (xpigi, ypigi), the light source
  virtual double vima() const = 0;  // step of the fan; read as degrees by bentaliaaktinon
  virtual Provoli provoli() const = 0;

 protected:
  Workbench() = default;
  Workbench(const Workbench&) = default;
  Workbench& operator=(const Workbench&) = default;
};

// The workbench that the routines without a screen argument draw on and read. The provider creates
// it when it is first asked for; an empty provider disconnects.
void connectWorkbench(std::function<Workbench&()> provider);
bool workbenchConnected();
// Must not be called while none is connected.
Workbench& workbench();

}  // namespace lensbench::poreiaaktinon
