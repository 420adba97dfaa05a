// The workbench as the optics sees it.
#pragma once

#include "optics/poreiaaktinon/Workbench.h"

namespace lensbench {

class kelmo;

class WorkbenchView : public poreiaaktinon::Workbench {
 public:
  explicit WorkbenchView(kelmo& screen) : screen_(screen) {}

  Canvas& canvas() override;
  poreiaaktinon::Diafragma diafragma() const override;
  poreiaaktinon::Fakos fakos() const override;
  double deiktisdiathlasis() const override;
  Point pigi() const override;
  double vima() const override;
  poreiaaktinon::Provoli provoli() const override;

 private:
  kelmo& screen_;
};

}  // namespace lensbench
