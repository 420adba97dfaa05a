// Writes the guide and the picture of each of its lessons: lensbench_guide FOLDER.
#include <cstdio>
#include <cstdlib>
#include <string>

#include <QDeadlineTimer>
#include <QDir>
#include <QImage>
#include <QSaveFile>

#include "app/Application.h"
#include "app/LessonSetup.h"
#include "app/Screens.h"
#include "canvas/qt/Clock.h"
#include "canvas/qt/Dialogs.h"
#include "canvas/qt/DrawingArea.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/Handlers.h"
#include "screens/help/Guide.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"

namespace lensbench {
namespace {

// Window managers answer late.
void comeToRest() {
  const QDeadlineTimer rest(500);
  while (!rest.hasExpired()) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

Form& inFront(Screens& screens) {
  if (screens.ElSahl().isVisible()) return screens.ElSahl();
  if (screens.moniaktina().isVisible()) return screens.moniaktina();
  return screens.kelmo();
}

// What the form shows of a part of the plane.
QImage picture(Form& form, const lessons::View& view) {
  const UserMapping map = form.canvas().mapping();
  const Point upperLeft = map.toPixel({view.left, view.upper});
  const Point lowerRight = map.toPixel({view.right, view.lower});
  const QImage whole = form.area().picture();
  const QRectF part(QPointF(upperLeft.x, upperLeft.y), QPointF(lowerRight.x, lowerRight.y));
  return whole.copy(part.toAlignedRect() & whole.rect());
}

bool write(Screens& screens, const QDir& folder) {
  std::size_t number = 0;
  for (const lessons::Lesson& lesson : lessons::all()) {
    setUp(screens, lesson);
    comeToRest();
    Form& form = inFront(screens);
    form.showMaximized();
    comeToRest();
    const QString file = folder.filePath(QString::fromStdString(lessons::picturePath(++number)));
    if (!picture(form, lesson.view).save(file)) return false;
    std::puts(qPrintable(file));
  }
  const std::string page = lessons::guide();
  QSaveFile file(folder.filePath("guide.md"));
  return file.open(QIODevice::WriteOnly) && file.write(page.data(), std::ssize(page)) >= 0 &&
         file.commit();
}

}  // namespace
}  // namespace lensbench

int main(int argc, char** argv) {
  using namespace lensbench;
  QtClock clock;
  QtDialogs dialogs(clock);
  Actions actions;
  Application application(argc, argv, dialogs, actions);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 2) {
    std::fputs("usage: lensbench_guide FOLDER\n", stderr);
    return EXIT_FAILURE;
  }
  Screens screens(dialogs, clock, actions);
  Main(screens);
  comeToRest();
  if (write(screens, QDir(arguments[1]))) return EXIT_SUCCESS;
  std::fputs("The guide could not be written.\n", stderr);
  return EXIT_FAILURE;
}
