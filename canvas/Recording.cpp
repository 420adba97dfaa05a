#include "canvas/Recording.h"

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

std::vector<Operation> Recording::operations(Operation::Kind kind) const {
  std::vector<Operation> chosen;
  std::copy_if(operations_.begin(), operations_.end(), std::back_inserter(chosen),
               [kind](const Operation& op) { return op.kind == kind; });
  return chosen;
}

void Recording::playOn(Canvas& canvas) const {
  // Pixels of this client area against pixels of the other, for the places of fills.
  double across = 1.0;
  double down = 1.0;
  for (const Operation& op : operations_) {
    canvas.DrawWidth(op.width);
    canvas.DrawStyle(op.style);
    canvas.FillStyle(op.fill ? FillStyle::Solid : FillStyle::Transparent);
    if (op.fill) canvas.FillColor(*op.fill);
    switch (op.kind) {
      case Operation::Kind::Cls:
        canvas.BackColor(op.colour);
        canvas.Cls();
        break;
      case Operation::Kind::Line:
        canvas.Line(op.x1, op.y1, op.x2, op.y2, op.colour);
        break;
      case Operation::Kind::Circle:
        canvas.Circle(op.x1, op.y1, op.radius, op.colour);
        break;
      case Operation::Kind::Arc:
        canvas.Circle(op.x1, op.y1, op.radius, op.colour, op.x2, op.y2);
        break;
      case Operation::Kind::PSet:
        canvas.PSet(op.x1, op.y1, op.colour);
        break;
      case Operation::Kind::Print:
        canvas.ForeColor(op.colour);
        canvas.FontName(op.font.name);
        canvas.FontSize(op.font.size);
        canvas.CurrentX(op.x1);
        canvas.CurrentY(op.y1);
        canvas.Print(op.text);
        break;
      case Operation::Kind::FloodFill:
        canvas.FillBody(static_cast<int>((op.x1 + 0.5) * across),
                        static_cast<int>((op.y1 + 0.5) * down), op.colour, op.body);
        break;
      case Operation::Kind::Scale:
        canvas.Scale(op.x1, op.y1, op.x2, op.y2);
        across = canvas.ScaleX(canvas.ScaleWidth(), ScaleUnit::User, ScaleUnit::Pixel) / width_;
        down = canvas.ScaleY(canvas.ScaleHeight(), ScaleUnit::User, ScaleUnit::Pixel) / height_;
        break;
    }
  }
}

void Recording::clear(Rgb colour) {
  Operation op;
  op.kind = Operation::Kind::Cls;
  op.colour = colour;
  operations_.push_back(op);
}

void Recording::strokeLine(Point from, Point to, const Pen& pen) {
  Operation op = stroke(Operation::Kind::Line, from, pen);
  op.x2 = to.x;
  op.y2 = to.y;
  operations_.push_back(op);
}

void Recording::strokeCircle(Point centre, double radius, const Pen& pen, std::optional<Rgb> fill) {
  Operation op = stroke(Operation::Kind::Circle, centre, pen);
  op.radius = radius;
  op.fill = fill;
  operations_.push_back(op);
}

void Recording::strokeArc(Point centre, double radius, const Pen& pen, double start, double end) {
  Operation op = stroke(Operation::Kind::Arc, centre, pen);
  op.radius = radius;
  op.x2 = start;
  op.y2 = end;
  operations_.push_back(op);
}

void Recording::paintDot(Point centre, const Pen& pen) {
  operations_.push_back(stroke(Operation::Kind::PSet, centre, pen));
}

double Recording::paintText(Point upperLeft, std::string_view text, const Font& font, Rgb colour) {
  Operation op = stroke(Operation::Kind::Print, upperLeft, {colour});
  op.text = text;
  op.font = font;
  operations_.push_back(op);
  return font.size * 96.0 / 72.0 * 1.2;
}

bool Recording::fillArea(int pixelX, int pixelY, Rgb border, Rgb fill) {
  Operation op;
  op.kind = Operation::Kind::FloodFill;
  op.x1 = pixelX;
  op.y1 = pixelY;
  op.colour = border;
  op.fill = fill;
  operations_.push_back(op);
  return true;
}

bool Recording::fillBody(int pixelX, int pixelY, Rgb border, Rgb fill, const Body& body) {
  fillArea(pixelX, pixelY, border, fill);
  operations_.back().body = body;
  return true;
}

void Recording::scaleChanged() {
  Operation op;
  op.kind = Operation::Kind::Scale;
  op.x1 = ScaleLeft();
  op.y1 = ScaleTop();
  op.x2 = ScaleLeft() + ScaleWidth();
  op.y2 = ScaleTop() + ScaleHeight();
  operations_.push_back(op);
}

}  // namespace lensbench
