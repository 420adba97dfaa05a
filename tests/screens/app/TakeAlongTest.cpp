// The pictures of the three drawing screens, taken along as a person sees them.
#include <algorithm>
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include "canvas/qt/Overlay.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/Export.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/app/Shell.h"

namespace lensbench {
namespace {

class TakeAlongTest : public ::testing::Test {
 protected:
  TakeAlongTest() { Main(screens); }

  // The area as it is seen, but for its controls and what only helps the hand.
  static QImage seen(Form& form) {
    for (Overlay* overlay : form.drawingArea()->findChildren<Overlay*>()) {
      if (!overlay->InPicture()) overlay->Visible(false);
    }
    QImage image(form.drawingArea()->size(), QImage::Format_RGB32);
    form.drawingArea()->render(&image, {}, {}, QWidget::DrawWindowBackground);
    return image;
  }

  static int coloured(const QImage& image) {
    int n = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) n += image.pixelColor(x, y) != QColor(Qt::white);
    }
    return n;
  }

  // What has been copied looks as the form does: the image in every pixel, the vectors in where
  // there is something and where there is nothing.
  static void expectCopied(Form& form) {
    copyPicture(form);
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    const QImage expected = seen(form);
    EXPECT_EQ(qvariant_cast<QImage>(data->imageData()), expected);
    EXPECT_GT(coloured(expected), 500);
    QSvgRenderer vectors(data->data("image/svg+xml"));
    ASSERT_TRUE(vectors.isValid());
    QImage drawn(expected.size(), QImage::Format_RGB32);
    drawn.fill(Qt::black);
    QPainter painter(&drawn);
    vectors.render(&painter);
    // By squares of 16 pixels, of which one with at least an eighth of black is not white in the
    // other, both ways.
    const auto blurred = [](const QImage& image) {
      return image.scaled(image.size() / 16, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage one = blurred(expected);
    const QImage other = blurred(drawn);
    for (int y = 0; y < one.height(); ++y) {
      for (int x = 0; x < one.width(); ++x) {
        const int here = qGray(one.pixel(x, y));
        const int there = qGray(other.pixel(x, y));
        EXPECT_FALSE(std::min(here, there) < 224 && std::max(here, there) > 253)
            << here << " and " << there << " at " << x << ", " << y;
      }
    }
  }

  Program program;
  Screens& screens = program.screens;
};

TEST_F(TakeAlongTest, TheWorkbenchWithAFanAndTheDiaphragm) {
  kelmo& screen = screens.kelmo();
  screen.controls().VScroll1.Value(50);
  screen.Form_MouseDown(1, 1, -200, 30);
  screen.Form_MouseUp(1, 1, -200, 30);
  expectCopied(screen);
}

TEST_F(TakeAlongTest, TheSingleRay) {
  screens.openSingleRay();
  moniaktina& screen = screens.moniaktina();
  screen.miaaktina(-150, 20, 50, 10);
  expectCopied(screen);
}

TEST_F(TakeAlongTest, IbnSahlsLens) {
  screens.shared().pigiX = 108;
  screens.shared().pigiY = 25;
  screens.openIbnSahl();
  screens.drawIbnSahl();
  expectCopied(screens.ElSahl());
}

TEST_F(TakeAlongTest, AFileIsWhatIsCopied) {
  const QTemporaryDir folder;
  FakeDialogs& boxes = Shell::instance->boxes;
  boxes.fileName = folder.filePath("bench.png");
  savePicture(screens.kelmo(), boxes);
  EXPECT_EQ(boxes.proposed.back(), "Spherical lenses.png");
  EXPECT_EQ(QImage(*boxes.fileName).convertToFormat(QImage::Format_RGB32), seen(screens.kelmo()));
  boxes.fileName.reset();
}

}  // namespace
}  // namespace lensbench
