// The lessons: their words, and what each of them puts on a screen.
#pragma once

#include <array>
#include <span>
#include <string_view>
#include <variant>

#include "canvas/Canvas.h"
#include "optics/light/Stop.h"

namespace lensbench::lessons {

// UTF-8.
struct Words {
  std::string_view greek;
  std::string_view english;
};

// Rays all around a source, as many as the ray bar gives.
struct Fan {};
// Parallel rays at an angle with the horizontal, degrees.
struct Bundle {
  double degrees = 0.0;
};
// The cardinal points, and the construction of the image of the source.
struct Marks {};

// What the workbench is given; lengths in user units.
struct OnWorkbench {
  int R1 = 100;   // radius of the left circle, the right face
  int R2 = 90;    // radius of the right circle, the left face
  int xc1 = -50;  // centre of the left circle
  int xc2 = 20;   // centre of the right circle
  int n = 150;    // index of refraction, hundredths
  int desmi1 = 20;
  light::Diafragma diafragma{};
  Point source{-200.0, 0.0};
  bool onlyWaves = false;  // instead of the rays
  std::variant<Fan, Bundle, Marks> light{};
};

// One ray from the source towards where it is aimed; the diaphragm is that of the workbench.
struct OnSingleRay {
  int R1 = 90;    // radius of the circle around the origin, the right face
  int R2 = 100;   // radius of the right circle, the left face
  int xc2 = 100;  // centre of the right circle
  int n = 150;    // hundredths
  light::Diafragma diafragma{};
  Point source{};
  Point aim{};
};

// A bundle through a lens of Ibn Sahl's, as rays alone.
struct OnIbnSahl {
  bool amfikyrtos = false;  // biconvex
  int n = 150;              // hundredths
  light::Diafragma diafragma{};
  Bundle light{};
};

// A part of the plane, user units; by default the lenses of the workbench with their labels.
struct View {
  double left = -260.0;
  double right = 320.0;
  double lower = -115.0;
  double upper = 154.0;
};

struct Lesson {
  Words title;
  Words see;   // what is seen once it is set up
  Words act;   // what to do
  Words look;  // what to look for
  Words question;
  Words answer;
  std::variant<OnWorkbench, OnSingleRay, OnIbnSahl> setup;
  View view{};  // what its picture in the guide shows
};

// A lesson piece by piece as it is read, each under its name.
struct Part {
  Words name;
  Words words;
};
std::array<Part, 5> parts(const Lesson& lesson);

// All of them, in the order in which they are taught. Their figures hold for what setup puts up.
std::span<const Lesson> all();

}  // namespace lensbench::lessons
