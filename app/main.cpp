#include "app/Application.h"
#include "app/Screens.h"
#include "canvas/qt/Clock.h"
#include "canvas/qt/Dialogs.h"
#include "screens/Handlers.h"

int main(int argc, char** argv) {
#ifdef Q_OS_LINUX
  // The program places its windows, which only the X11 platform lets it do.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "xcb");
#endif
  lensbench::QtClock clock;
  lensbench::QtDialogs dialogs(clock);
  lensbench::Actions actions;
  lensbench::Application application(argc, argv, dialogs, actions);
  lensbench::Screens screens(dialogs, clock, actions);
  application.run([&screens] { lensbench::Main(screens); });
  return lensbench::Application::exec();
}
