#include <QLocale>

#include "app/Application.h"
#include "app/Screens.h"
#include "app/Signals.h"
#include "app/StandardWords.h"
#include "app/Surroundings.h"
#include "canvas/qt/Clock.h"
#include "canvas/qt/Dialogs.h"
#include "screens/Handlers.h"

int main(int argc, char** argv) {
  lensbench::needMemory();
  lensbench::needDisplay();
  lensbench::useOnlyDesktopBus();
  lensbench::QtClock clock;
  lensbench::QtDialogs dialogs(clock);
  lensbench::Actions actions;
  lensbench::Application application(argc, argv, dialogs, actions);
  lensbench::needGreekFont();
  lensbench::translateStandardWords(application, QLocale::system());
  lensbench::endBySignals(application);
  lensbench::Screens screens(dialogs, clock, actions);
  application.run([&screens] { lensbench::Main(screens); });
  return lensbench::Application::exec();
}
