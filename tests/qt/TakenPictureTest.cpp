// The picture taken along: its pixels are those that are seen, and its vector files, as other
// programs render them, look like what the screen shows.
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <set>
#include <string>

#include <QApplication>
#include <QFile>
#include <QPageLayout>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "canvas/Recording.h"
#include "canvas/qt/CommandButton.h"
#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/LineControl.h"
#include "canvas/qt/Shape.h"
#include "canvas/qt/TakenPicture.h"
#include "optics/poreiaaktinon/Picture.h"
#include "optics/poreiaaktinon/SingleRayPicture.h"
#include "optics/protosfakos/Picture.h"
#include "tests/qt/Alike.h"
#include "tests/qt/Pictures.h"

namespace lensbench {
namespace {

constexpr View wide{{600, 300}, -400, 200, 400, -200};
constexpr View square{{540, 480}, -120, 120, 150, -120};
constexpr Rgb orange = RGB(255, 128, 0);

// A form with a source, two blades, a halo and a button over a drawing.
struct Bench {
  explicit Bench(const View& view)
      : form({"bench", "", 0, 0, view.size.width() * twipsPerPixel,
              view.size.height() * twipsPerPixel, white}) {
    form.setAccessibleName("Πάγκος · Bench");
    form.canvas().setOversampling(1);
    form.canvas().Scale(view.left, view.top, view.right, view.bottom);
    upper.between({-100, 500}, {-100, 50});
    lower.between({-100, -20}, {-100, -500});
    for (LineControl* blade : {&upper, &lower}) {
      blade->BorderColor(blue);
      blade->BorderWidth(3);
    }
    source.FillStyle(FillStyle::Solid);
    source.FillColor(orange);
    halo.BorderColor(red);
    halo.InPicture(false);
  }

  void show(bool visible) {
    for (Overlay* overlay : {static_cast<Overlay*>(&upper), static_cast<Overlay*>(&lower),
                             static_cast<Overlay*>(&source), static_cast<Overlay*>(&halo)}) {
      overlay->Visible(visible);
    }
  }
  // With another drawing.
  Form& taken(std::function<void(Canvas&)> draw) {
    form.area().drawBy({}, std::move(draw));
    return form;
  }

  Form form;
  LineControl upper{form, "upper", {0, 0, 0, 0}};
  LineControl lower{form, "lower", {0, 0, 0, 0}};
  Shape source{form, "source", {900, 900, 150, 150}};
  Shape halo{form, "halo", {750, 750, 450, 450}};
  CommandButton button{form, "button", {1500, 300, 1200, 450}};
};

// What another program makes of a file, which must make something of it.
QByteArray outputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return process.readAllStandardOutput();
}

struct Folder {
  QString put(const QString& name, const QByteArray& bytes) const {
    QFile file(all.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }
  QTemporaryDir all;
};

// Vectors in hard pixels, `fine` for each of the screen.
QImage rendered(const QByteArray& file) {
  const Folder folder;
  const QString image = folder.all.filePath("image.png");
  if (file.startsWith("%PDF")) {
    outputOf("pdftoppm",
             {"-singlefile", "-png", "-aa", "no", "-aaVector", "no", "-r",
              QString::number(96 * fine), folder.put("file", file), folder.all.filePath("image")});
  } else {
    QByteArray hard = file;
    hard.replace("<svg ", "<svg shape-rendering=\"crispEdges\" ");
    outputOf("rsvg-convert", {"-z", QString::number(fine), "-o", image, folder.put("file", hard)});
  }
  return QImage(image).convertToFormat(QImage::Format_RGB32);
}

// The pixels of a colour alone.
QImage only(const QImage& image, Rgb colour) {
  QImage all(image.size(), QImage::Format_RGB32);
  all.fill(opaque(white));
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (at(image, x, y) == opaque(colour)) all.setPixel(x, y, opaque(colour));
    }
  }
  return all;
}

template <class Shown>
void expectFilesAlike(const View& view, const Shown& shown) {
  Bench bench(view);
  bench.show(false);
  const auto drawing = [&](Canvas& canvas) { draw(canvas, shown); };
  Recording recording(view.size.width(), view.size.height());
  drawing(recording);
  std::set<std::uint32_t> colours;
  for (const Operation& op : recording.operations()) colours.insert(op.colour.value);
  const auto expect = [&](std::optional<Rgb> colour, double part) {
    const QImage seen = screen(view, drawing, colour);
    const auto chosen = [&](Canvas& canvas) {
      Chosen some(canvas, view, colour);
      drawing(some);
    };
    for (const QByteArray& file : {svg(bench.taken(chosen)), pdf(bench.taken(chosen))}) {
      SCOPED_TRACE(file.left(4).toStdString());
      const QImage vectors = rendered(file);
      ASSERT_EQ(vectors.size(), view.size * fine);
      EXPECT_TRUE(hasAllOf(seen, vectors, part)) << "missing in vectors";
      if (colour) {
        EXPECT_TRUE(hasAllOf(vectors, seen, part)) << "missing on the screen";
      }
    }
  };
  for (const std::uint32_t value : colours) {
    SCOPED_TRACE(value);
    expect(Rgb{value}, 0.0);
  }
  // Together, the same lies above, but for specks that the rounding to pixels leaves.
  expect({}, 0.01);
}

TEST(TakenPicture, OfTheWorkbenchLooksInFilesAsOnTheScreen) {
  using namespace poreiaaktinon;
  constexpr Fakos usual{-50, 100, 20, 90};
  constexpr Point source{-250, 40};
  const Sent sent =
      send({usual, 1.5, Diafragma{-150, 25, -35}}, Fan{source, 5}, {-400, 400, -200, 200});
  expectFilesAlike(wide, Shown{{LensScene{usual, 1.5, source}, Light{sent, {true, true}},
                                CardinalMarks{usual, 1.5, source}}});
}

TEST(TakenPicture, OfASingleRayLooksInFilesAsOnTheScreen) {
  using namespace poreiaaktinon;
  const auto outline = single::outlineOf(90, 100, 0, 100, 1.5);
  const single::AimLine aim{{-100, 20}, {50, 10}};
  const single::Ray ray{send({{0, 90, 100, 100}, 1.5, {}},
                             SingleRay{aim.from, single::aimedDirection(-100, 20, 50, 10)},
                             {-400, 400, -200, 200})};
  expectFilesAlike(wide, single::Shown{{aim, single::LensUnderRay{outline}, ray}});
}

TEST(TakenPicture, OfIbnSahlsLensLooksInFilesAsOnTheScreen) {
  using namespace protosfakos;
  expectFilesAlike(
      square, Shown{{sceneOf({.rays = Fan{{108, 25}}, .diafragma = Diafragma{130, 60, -60}})}});
}

TEST(TakenPicture, HasThePixelsThatAreSeenButNoControlsAndNoHalo) {
  Bench bench(wide);
  bench.form.canvas().setOversampling(3);
  const auto drawing = [](Canvas& canvas) {
    canvas.Cls();
    canvas.DrawWidth(3);
    canvas.Line(-390, -190, 390, 190, green);
  };
  bench.form.area().drawBy([&] { drawing(bench.form.canvas()); });
  bench.form.area().stale();
  QImage taken = pixelsOf(bench.form);
  bench.halo.Visible(false);
  QImage seen(bench.form.drawingArea()->size(), QImage::Format_RGB32);
  bench.form.drawingArea()->render(&seen, {}, {}, QWidget::DrawWindowBackground);
  EXPECT_EQ(taken, seen);
  EXPECT_GT(count(taken, blue), 100);
  EXPECT_GT(count(taken, orange), 20);
  EXPECT_GT(count(taken, green), 100);
  EXPECT_EQ(count(taken, red), 0);
  const QImage inFile = QImage::fromData(png(bench.form));
  EXPECT_EQ(inFile.convertToFormat(QImage::Format_RGB32), seen);
  EXPECT_NEAR(inFile.dotsPerMeterX(), 96 / 0.0254, 1.0);
  bench.form.area().drawBy({});
}

TEST(TakenPicture, HasBladesAndSourceInItsFilesToo) {
  Bench bench(wide);
  const QImage seen = pixelsOf(bench.form);
  for (const QByteArray& file : {svg(bench.form), pdf(bench.form)}) {
    SCOPED_TRACE(file.left(4).toStdString());
    const QImage vectors = rendered(file);
    for (const Rgb colour : {blue, orange}) {
      EXPECT_GT(count(vectors, colour), 100);
      EXPECT_TRUE(hasAllOf(only(seen, colour), only(vectors, colour), 0.0));
      EXPECT_TRUE(hasAllOf(only(vectors, colour), only(seen, colour), 0.0));
    }
    EXPECT_EQ(count(vectors, red), 0);
  }
}

TEST(TakenPicture, IsAsLargeInItsFilesAsOnAUsualDisplay) {
  Bench bench(square);
  const auto file = QString::fromUtf8(svg(bench.form));
  const QRegularExpression size("width=\"([0-9.]+)mm\" height=\"([0-9.]+)mm\"");
  const auto match = size.match(file);
  ASSERT_TRUE(match.hasMatch());
  EXPECT_NEAR(match.captured(1).toDouble(), 540 * 25.4 / 96, 0.05);
  EXPECT_NEAR(match.captured(2).toDouble(), 480 * 25.4 / 96, 0.05);
  EXPECT_TRUE(file.contains("viewBox=\"0 0 540 480\""));
  EXPECT_TRUE(file.contains("<title>Πάγκος · Bench</title>"));
  const Folder folder;
  const QString facts =
      QString::fromUtf8(outputOf("pdfinfo", {folder.put("bench.pdf", pdf(bench.form))}));
  EXPECT_TRUE(facts.contains(QRegularExpression("Pages: +1\n"))) << facts.toStdString();
  EXPECT_TRUE(facts.contains(QRegularExpression("Page size: +405 x 360 pts")))
      << facts.toStdString();
}

TEST(TakenPicture, WritesLettersAsOutlinesThatNeedNoFont) {
  Bench bench(wide);
  bench.show(false);
  const auto letters = [](Canvas& canvas) {
    canvas.Cls();
    canvas.FontSize(40);
    canvas.CurrentX(-300);
    canvas.CurrentY(100);
    canvas.Print("Φακός λ H1");
  };
  letters(bench.form.canvas());
  const QRect seen = extent(pixelsOf(bench.taken(letters)), black);
  const QByteArray vectors = svg(bench.taken(letters));
  EXPECT_FALSE(vectors.contains("<text"));
  const QRect written = extent(rendered(vectors), black);
  EXPECT_NEAR(written.left(), seen.left() * fine, 2 * fine);
  EXPECT_NEAR(written.top(), seen.top() * fine, 2 * fine);
  // On the screen each of the ten begins at a whole pixel.
  EXPECT_NEAR(written.width(), seen.width() * fine, 10 * fine / 2);
  EXPECT_NEAR(written.height(), seen.height() * fine, 2 * fine);
  const Folder folder;
  const QByteArray fonts =
      outputOf("pdffonts", {folder.put("bench.pdf", pdf(bench.taken(letters)))});
  EXPECT_EQ(fonts.count('\n'), 2) << fonts.toStdString();
}

TEST(TakenPicture, StandsInTheMiddleOfAPageInsideItsMargins) {
  Bench bench(wide);
  Form& picture = bench.taken([](Canvas& canvas) {
    canvas.Cls();
    canvas.DrawWidth(4);
    canvas.Line(-400, 200, 400, 200, green);
    canvas.Line(-400, -200, 400, -200, green);
  });
  const Folder folder;
  const QString file = folder.all.filePath("page.pdf");
  {
    QPdfWriter paper(file);
    paper.setPageLayout({QPageSize(QPageSize::A4),
                         QPageLayout::Landscape,
                         {20, 10, 20, 10},
                         QPageLayout::Millimeter});
    EXPECT_TRUE(printOn(paper, picture));
  }
  EXPECT_TRUE(outputOf("pdfinfo", {file}).contains("Pages:           1\n"));
  outputOf("pdftoppm", {"-singlefile", "-png", "-r", "254", file, folder.all.filePath("page")});
  const QImage page(folder.all.filePath("page.png"));
  // Ten pixels are a millimetre; the paper is 297 x 210 mm.
  ASSERT_NEAR(page.width(), 2970, 2);
  ASSERT_NEAR(page.height(), 2100, 2);
  const QRect lines = extent(page, green);
  EXPECT_NEAR(lines.left(), 200, 8);
  EXPECT_NEAR(lines.right(), 2770, 8);
  EXPECT_NEAR(lines.center().y(), 1050, 8);
  EXPECT_NEAR(lines.height(), 2570 / 2, 20);
  // White to its edges.
  EXPECT_EQ(colourAt(page, 5, 5), white);
}

}  // namespace
}  // namespace lensbench
