// What the hyperbolic lenses must know of their screen, as a view that the screen implements.
#pragma once

#include <functional>
#include <string_view>

#include "canvas/Canvas.h"

namespace lensbench::protosfakos {

// The opening of the diaphragm: the vertical line x = X is open from lower to upper, user units.
struct Diafragma {
  double X = 0.0;      // Line1 X1
  double upper = 0.0;  // Line1 Y2, inner end of the upper edge
  double lower = 0.0;  // Line2 Y2, inner end of the lower edge
};

class SahlScreen {
 public:
  virtual ~SahlScreen() = default;
  virtual Canvas& canvas() = 0;
  virtual void caption(std::string_view utf8) = 0;
  virtual Diafragma diafragma() const = 0;
  virtual bool onlyRays() const = 0;   // "Only Rays" is selected: no fronts
  virtual bool onlyWaves() const = 0;  // "ONLY WAVES" is selected: no rays, normals, ideal bundle
  // A message box; returns when it has been closed.
  virtual void message(std::string_view utf8) = 0;

 protected:
  SahlScreen() = default;
  SahlScreen(const SahlScreen&) = default;
  SahlScreen& operator=(const SahlScreen&) = default;
};

// Where the routines find the screen they draw on, whoever calls them. The function is called at
// each drawing, so the screen may be made at its first use.
void connectSahlScreen(std::function<SahlScreen&()> screen);
// Raises std::bad_function_call while nothing is connected.
SahlScreen& sahlScreen();

}  // namespace lensbench::protosfakos
