#include "app/Application.h"
#include "app/Screens.h"
#include "app/Signals.h"
#include "app/Surroundings.h"

int main(int argc, char** argv) {
  lensbench::needDisplay();
  lensbench::Application application(argc, argv);
  lensbench::needGreekFont();
  lensbench::endBySignals(application);
  lensbench::Screens screens;
  application.run([&screens] { lensbench::Main(screens); });
  return lensbench::Application::exec();
}
