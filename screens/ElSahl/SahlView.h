// The Ibn Sahl screen as the optics sees it.
#pragma once

#include "optics/protosfakos/SahlScreen.h"

namespace lensbench {

class ElSahl;

class SahlView : public protosfakos::SahlScreen {
 public:
  explicit SahlView(ElSahl& screen) : screen_(screen) {}

  Canvas& canvas() override;
  void caption(std::string_view utf8) override;
  protosfakos::Diafragma diafragma() const override;
  bool onlyRays() const override;
  bool onlyWaves() const override;
  void message(std::string_view utf8) override;

 private:
  ElSahl& screen_;
};

}  // namespace lensbench
