// The picture is what its value gives, whatever has been done.
#include <random>

#include <QCoreApplication>

#include "tests/screens/moniaktina/MoniaktinaTest.h"
#include "tests/screens/support/PictureOf.h"

namespace lensbench {
namespace {

class MoniaktinaLaw : public MoniaktinaTest, public ::testing::WithParamInterface<unsigned> {
 protected:
  std::mt19937 random{GetParam()};
  int from(int least, int most) { return std::uniform_int_distribution(least, most)(random); }
  double x() { return from(-4000, 4000) / 10.0; }

  void act() {
    switch (from(0, 9)) {
      case 0:
        c.aktina1.Value(from(50, 500));
        break;
      case 1:
        c.aktina2.Value(from(1, 500));
        break;
      case 2:
        c.kentrokykloy.Value(from(1, 500));
        break;
      case 3:
        c.deiktisdiathlasis.Value(from(40, 250));
        break;
      case 4:
        screen.Form_MouseDown(1, 0, x(), x());
        break;
      case 5:
        screen.Form_MouseMove(1, 0, x(), x());
        if (from(0, 1) == 0) emit screen.DragEnded();
        break;
      case 6:
        // Never straight above or below the source, whose middle lies between whole tenths.
        screen.Form_MouseUp(1, 0, x() + 0.0123, x());
        break;
      case 7:
        screen.setWindowState(Qt::WindowNoState);
        screen.resize(from(200, 900), from(150, 700));
        QCoreApplication::processEvents();
        break;
      case 8:
        screen.canvas().resize(screen.drawingArea()->size(), from(2, 4) / 2.0);
        break;
      default:
        t.moves.opening = {x() / 2.0, x(), -x()};
        screen.Hide();
        open();
    }
  }
};

TEST_P(MoniaktinaLaw, ThePictureIsWhatItsValueGives) {
  EXPECT_TRUE(showsItsValue(screen));
  open();
  for (int i = 0; i < 60; ++i) {
    act();
    ASSERT_TRUE(showsItsValue(screen)) << "after action " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, MoniaktinaLaw, ::testing::Range(1u, 9u));

}  // namespace
}  // namespace lensbench
