#include "tests/support/RecordingCanvas.h"

#include <algorithm>
#include <iterator>
#include <ostream>

namespace lensbench {
namespace {

Operation stroke(Operation::Kind kind, Point at, const Pen& pen) {
  Operation op;
  op.kind = kind;
  op.x1 = at.x;
  op.y1 = at.y;
  op.colour = pen.colour;
  op.width = pen.width;
  op.style = pen.style;
  return op;
}

const char* name(Operation::Kind kind) {
  switch (kind) {
    case Operation::Kind::Cls:
      return "Cls";
    case Operation::Kind::Line:
      return "Line";
    case Operation::Kind::Circle:
      return "Circle";
    case Operation::Kind::Arc:
      return "Arc";
    case Operation::Kind::PSet:
      return "PSet";
    case Operation::Kind::Print:
      return "Print";
    case Operation::Kind::FloodFill:
      return "FloodFill";
    case Operation::Kind::Scale:
      return "Scale";
  }
  return "?";
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Operation& op) {
  return out << name(op.kind) << " (" << op.x1 << ", " << op.y1 << ") (" << op.x2 << ", " << op.y2
             << ") r=" << op.radius << " rgb(" << op.colour.red() << ", " << op.colour.green()
             << ", " << op.colour.blue() << ") width=" << op.width
             << (op.style == DrawStyle::Dotted ? " dotted " : " ") << op.text;
}

std::vector<Operation> RecordingCanvas::operations(Operation::Kind kind) const {
  std::vector<Operation> chosen;
  std::copy_if(operations_.begin(), operations_.end(), std::back_inserter(chosen),
               [kind](const Operation& op) { return op.kind == kind; });
  return chosen;
}

void RecordingCanvas::clear(Rgb colour) {
  Operation op;
  op.kind = Operation::Kind::Cls;
  op.colour = colour;
  operations_.push_back(op);
}

void RecordingCanvas::strokeLine(Point from, Point to, const Pen& pen) {
  Operation op = stroke(Operation::Kind::Line, from, pen);
  op.x2 = to.x;
  op.y2 = to.y;
  operations_.push_back(op);
}

void RecordingCanvas::strokeCircle(Point centre, double radius, const Pen& pen,
                                   std::optional<Rgb> fill) {
  Operation op = stroke(Operation::Kind::Circle, centre, pen);
  op.radius = radius;
  op.fill = fill;
  operations_.push_back(op);
}

void RecordingCanvas::strokeArc(Point centre, double radius, const Pen& pen, double start,
                                double end) {
  Operation op = stroke(Operation::Kind::Arc, centre, pen);
  op.radius = radius;
  op.x2 = start;
  op.y2 = end;
  operations_.push_back(op);
}

void RecordingCanvas::paintDot(Point centre, const Pen& pen) {
  operations_.push_back(stroke(Operation::Kind::PSet, centre, pen));
}

double RecordingCanvas::paintText(Point upperLeft, std::string_view text, const Font& font,
                                  Rgb colour) {
  Operation op = stroke(Operation::Kind::Print, upperLeft, {colour});
  op.text = text;
  op.font = font;
  operations_.push_back(op);
  return font.size * 96.0 / 72.0 * 1.2;
}

bool RecordingCanvas::fillArea(int pixelX, int pixelY, Rgb border, Rgb fill) {
  Operation op;
  op.kind = Operation::Kind::FloodFill;
  op.x1 = pixelX;
  op.y1 = pixelY;
  op.colour = border;
  op.fill = fill;
  operations_.push_back(op);
  return true;
}

void RecordingCanvas::scaleChanged() {
  Operation op;
  op.kind = Operation::Kind::Scale;
  op.x1 = ScaleLeft();
  op.y1 = ScaleTop();
  op.x2 = ScaleLeft() + ScaleWidth();
  op.y2 = ScaleTop() + ScaleHeight();
  operations_.push_back(op);
}

}  // namespace lensbench
