// However long a person works, the program needs no more memory for it.
#include <malloc.h>
#include <random>
#include <vector>

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
  // The same picture each time, without spare memory of the program or of the allocator.
  std::vector<int> standing;
  for (const ScrollBar* bar : bars) standing.push_back(bar->Value());
  const auto heldAtRest = [&] {
    for (std::size_t i = 0; i < std::size(bars); ++i) bars[i]->Value(standing[i]);
    QTest::qWait(1500);
    malloc_trim(0);
    return memoryMiB("VmRSS");
  };
  // Until the history is full and every pixel has been drawn on.
  act(1000);
  const double before = heldAtRest();
  act(10000);
  EXPECT_LT(heldAtRest() - before, 1.0);
  const auto& layers = bench.shown().layers;
  ASSERT_EQ(layers.size(), 2U);
  EXPECT_EQ(std::get<poreiaaktinon::Light>(layers.back()).sent.paths->size(), 76U);
}

}  // namespace
}  // namespace lensbench
