#include "app/Application.h"
#include "app/Screens.h"

int main(int argc, char** argv) {
#ifdef Q_OS_LINUX
  // The program places its windows, which only the X11 platform lets it do.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "xcb");
#endif
  lensbench::Application application(argc, argv);
  lensbench::Screens screens;
  application.run([&screens] { lensbench::Main(screens); });
  return lensbench::Application::exec();
}
