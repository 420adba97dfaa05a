// However long a person works, the program needs no more memory for it.
#include <random>

#include "tests/screens/app/Hand.h"
#include "tests/support/Memory.h"

namespace lensbench {
namespace {

class FlatMemory : public HandTest {};

TEST_F(FlatMemory, OverTenThousandActionsWithAFanStanding) {
  KelmoControls& c = bench.controls();
  bench.setWindowState(Qt::WindowNoState);
  bench.resize(620, 340);
  QCoreApplication::processEvents();
  openDiaphragm();
  c.desmi1.Value(20);
  c.arvimaton.Value(30);
  screens.toggleFollow();
  click(bench, outside, true);
  std::mt19937 random(8);
  ScrollBar* const bars[] = {&c.aktina1,           &c.kentrokykloy2, &c.aktina2, &c.kentrokykloy,
                             &c.deiktisdiathlasis, &c.HScroll1,      &c.VScroll1};
  const auto act = [&](int actions) {
    for (int i = 0; i < actions; ++i) {
      ScrollBar& bar = *bars[static_cast<std::size_t>(i) % std::size(bars)];
      bar.Value(std::uniform_int_distribution(bar.Min(), bar.Max())(random));
      QCoreApplication::processEvents();
    }
  };
  // Until the history is full and every pixel has been drawn on.
  act(1000);
  // Until spare memory has been given back.
  QTest::qWait(1500);
  const double before = memoryMiB("VmRSS");
  act(10000);
  QTest::qWait(1500);
  EXPECT_LT(memoryMiB("VmRSS") - before, 2.0);
  const auto& layers = bench.shown().layers;
  ASSERT_EQ(layers.size(), 2U);
  EXPECT_EQ(std::get<poreiaaktinon::Light>(layers.back()).sent.paths->size(), 76U);
}

}  // namespace
}  // namespace lensbench
