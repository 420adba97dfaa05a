#include "optics/light/AskRays.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "canvas/Format.h"
#include "optics/light/OpticalPath.h"

namespace lensbench::light {
namespace {

constexpr double degree = std::numbers::pi / 180.0;

double indexBehind(const RayPath& path, const Piece& piece) {
  return piece.medium == Medium::Glass ? 1.0 : path.n;
}

// Between a direction and a normal, whichever side that is on: 0 to a right angle, radians.
double angleWith(Point normal, Point direction) {
  return std::atan2(std::fabs(cross(normal, direction)), std::fabs(dot(normal, direction)));
}

// The angle of a direction with the axis, counter-clockwise, above -180 up to 180 degrees.
std::string turnOf(Point direction) {
  const std::string shown = formatHundredths(std::atan2(direction.y, direction.x) / degree);
  return shown == "-180.00" ? "180.00" : shown;
}

// The index and the angle on one side of a face.
struct Half {
  double index = 1.0;
  double angle = 0.0;

  double product() const { return index * std::sin(angle); }
  std::string shown(char side) const {
    return std::string("n") + side + " = " + formatHundredths(index) + ", a" + side + " = " +
           formatHundredths(angle / degree) + "°";
  }
};

std::string refractionWords(const Half& before, const Half& behind) {
  // The products are equal but for the last bit, which may fall on either side of a half.
  int decimals = 4;
  std::string first;
  std::string second;
  do {
    first = formatDecimals(before.product(), decimals);
    second = formatDecimals(behind.product(), decimals);
  } while (first != second && decimals-- > 0);
  const std::string sides = before.shown('1') + ", " + behind.shown('2') + "\n";
  const auto products = [&](const std::string& sine) {
    return "n1·" + sine + " a1 = " + first + ", n2·" + sine + " a2 = " + second;
  };
  return "διάθλαση: " + sides + products("ημ") + "\nrefraction: " + sides + products("sin");
}

// What happens at the face that ends a piece which is not the last one.
std::string meetingWords(const RayPath& path, std::size_t i) {
  const Meeting& meeting = path.meetings[i];
  if (meeting.refracts) {
    const Piece& before = path.pieces[i];
    const Piece& behind = path.pieces[i + 1];
    return refractionWords({indexOf(path, before), angleWith(meeting.normal, before.direction)},
                           {indexOf(path, behind), angleWith(meeting.normal, behind.direction)});
  }
  if (i > 0 && !path.meetings[i - 1].refracts) {
    return "η ακτίνα, που μπήκε από την κορυφή της υπερβολής, βγαίνει ευθεία, χωρίς διάθλαση, "
           "όπως σχεδιάστηκε\n"
           "the ray, which came in by the hyperbola's vertex, goes out straight, unrefracted, as "
           "drawn";
  }
  return "κορυφή της υπερβολής: η ακτίνα συνεχίζει ευθεία, χωρίς διάθλαση, όπως σχεδιάστηκε\n"
         "the hyperbola's vertex: the ray goes on straight, unrefracted, as drawn";
}

// What ends a ray at a face. The angles get as many decimals as it takes to tell them apart.
std::string reflectionWords(const RayPath& path) {
  const Piece& last = path.way().back();
  const Meeting& meeting = path.meetings[path.way().size() - 1];
  const double ratio = std::fabs(indexBehind(path, last) / indexOf(path, last));
  const double critical = std::asin(std::min(ratio, 1.0)) / degree;
  const double angle = angleWith(meeting.normal, last.direction) / degree;
  for (int decimals = 1; decimals <= 9; ++decimals) {
    const std::string limit = formatDecimals(critical, decimals);
    const std::string shown = formatDecimals(angle, decimals);
    if (shown == limit) continue;
    return "ολική ανάκλαση: οι " + shown + "° ξεπερνούν την κρίσιμη γωνία των " + limit +
           "°\ntotal reflection: " + shown + "° is more than the critical angle " + limit + "°";
  }
  const std::string shown = formatHundredths(critical);
  return "ολική ανάκλαση: οι " + shown + "° είναι η κρίσιμη γωνία\ntotal reflection: " + shown +
         "° is the critical angle";
}

std::string trappedWords() {
  return "τέλος της ακτίνας: καμία όψη μπροστά της δεν την αφήνει να βγει από το γυαλί\n"
         "end of the ray: no face ahead of it lets it out of the glass";
}

std::string stopWords(double opening, Phrase blades) {
  const std::string shown = formatShort(std::max(opening, 0.0));
  std::string greek = "σταμάτησε στο διάφραγμα, η οπή του είναι " + shown;
  std::string english = "stopped by the diaphragm, its opening is " + shown;
  if (shown == "0") {
    greek += std::string(": σύρε τα άκρα του για να ανοίξει") + blades.greek;
    english += std::string(": drag the blades apart") + blades.english;
  }
  return greek + "\n" + english;
}

std::string rayWords(std::span<const RayPath> paths, std::size_t ray, std::size_t piece) {
  const RayPath& path = paths[ray];
  std::string greek = "ακτίνα";
  std::string english = "ray";
  if (paths.size() > 1) {
    const std::string number = std::string(" ") + std::to_string(ray + 1);
    const std::string count = std::to_string(paths.size());
    greek += number + " από " + count;
    english += number + " of " + count;
  }
  const std::string start = turnOf(path.pieces[0].direction) + "°";
  greek += ": γωνία " + start + " με τον άξονα";
  english += ": angle " + start + " with the axis";
  if (piece > 0) {
    const std::string here = turnOf(path.pieces[piece].direction) + "°";
    greek += ", εδώ " + here;
    english += ", here " + here;
  }
  return greek + "\n" + english;
}

void offerMeetings(Nearest& nearest, const RayPath& path) {
  const std::size_t last = path.way().size() - 1;
  for (std::size_t i = 0; i < last; ++i) {
    nearest.point(Rank::Event, path.pieces[i].to, [&path, i] { return meetingWords(path, i); });
  }
  if (path.ending == Ending::TotalReflection) {
    nearest.point(Rank::Event, path.end(), [&path] { return reflectionWords(path); });
  } else if (path.ending == Ending::Trapped) {
    nearest.point(Rank::Event, path.end(), trappedWords);
  }
}

}  // namespace

void offerRays(Nearest& nearest, std::span<const RayPath> paths) {
  for (std::size_t ray = 0; ray < paths.size(); ++ray) {
    const RayPath& path = paths[ray];
    offerMeetings(nearest, path);
    for (std::size_t i = 0; i < path.way().size(); ++i) {
      const Piece& piece = path.pieces[i];
      nearest.stroke(Rank::Ray, piece.from, piece.to,
                     [paths, ray, i] { return rayWords(paths, ray, i); });
    }
  }
}

void offerStops(Nearest& nearest, std::span<const RayPath> paths, const Diafragma& diafragma,
                Phrase blades) {
  const double opening = diafragma.yA - diafragma.yB;
  for (const RayPath& path : paths) {
    if (path.ending != Ending::Diaphragm) continue;
    nearest.point(Rank::Event, path.end(),
                  [opening, blades] { return stopWords(opening, blades); });
  }
}

std::string frontWords(double opticalPath, Phrase origin) {
  const std::string path = formatShort(opticalPath);
  return "μέτωπο κύματος: οπτικός δρόμος " + path + " από " + origin.greek +
         "\nwave front: optical path " + path + " from " + origin.english;
}

std::string coordinates(Point p) {
  return std::string("(") + formatShort(p.x) + ", " + formatShort(p.y) + ")";
}

}  // namespace lensbench::light
