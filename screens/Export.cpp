#include "screens/Export.h"

#include <QBuffer>
#include <QClipboard>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

#include "canvas/qt/Dialogs.h"
#include "canvas/qt/Form.h"
#include "canvas/qt/TakenPicture.h"

namespace lensbench {
namespace {

struct Kind {
  FileKind shown;
  QByteArray (*make)(Form&);
};

const QList<Kind>& kinds() {
  static const QList<Kind> all{
      {{QStringLiteral("Εικόνα με εικονοστοιχεία · Image of pixels"), QStringLiteral("png")}, png},
      {{QStringLiteral("Διανυσματική εικόνα · Vector picture"), QStringLiteral("svg")}, svg},
      {{QStringLiteral("Έγγραφο μιας σελίδας · Document of one page"), QStringLiteral("pdf")},
       pdf}};
  return all;
}

// The English name of the screen: such a file name lasts on every system.
QString proposedName(Form& form) {
  return form.accessibleName().section(QStringLiteral(" · "), -1) + QStringLiteral(".png");
}

enum class Written { Whole, NotOpened, NotWhole };

template <typename File>
Written writeTo(File& file, const QByteArray& bytes) {
  if (!file.open(QIODevice::WriteOnly)) return Written::NotOpened;
  const bool whole = file.write(bytes) == bytes.size() && file.flush();
  if constexpr (requires { file.commit(); }) {
    return whole && file.commit() ? Written::Whole : Written::NotWhole;
  }
  return whole ? Written::Whole : Written::NotWhole;
}

// Replaces what a file holds, at once or, where that fails, not at all. A device is just written
// to.
Written writeFile(const QString& name, const QByteArray& bytes) {
  const QFileInfo there(name);
  // To put a new file in the place of a device would take the device away.
  if (there.exists() && !there.isFile()) {
    QFile device(name);
    return writeTo(device, bytes);
  }
  QSaveFile file(name);
  return writeTo(file, bytes);
}

void saveOrSay(const QString& name, const QByteArray& bytes, Dialogs& dialogs) {
  switch (writeFile(name, bytes)) {
    case Written::Whole:
      return;
    case Written::NotOpened:
      dialogs.MsgBox(
          QStringLiteral("Η εικόνα δεν αποθηκεύτηκε: το αρχείο «%1» δεν μπορεί να γραφτεί εκεί. "
                         "Διάλεξε άλλον φάκελο ή άλλο όνομα.\n"
                         "The picture was not saved: the file “%1” cannot be written there. "
                         "Choose another folder or another name.")
              .arg(name));
      return;
    case Written::NotWhole:
      dialogs.MsgBox(
          QStringLiteral(
              "Η εικόνα δεν αποθηκεύτηκε: το αρχείο «%1» δεν γράφτηκε ολόκληρο, ίσως επειδή ο "
              "δίσκος είναι γεμάτος. Ό,τι υπήρχε εκεί έμεινε όπως ήταν.\n"
              "The picture was not saved: the file “%1” was not written to its end, perhaps "
              "because the disk is full. What was there is as it was.")
              .arg(name));
      return;
  }
}

}  // namespace

void copyPicture(Form& form) {
  auto* data = new QMimeData;
  data->setImageData(pixelsOf(form));
  data->setData(QStringLiteral("image/svg+xml"), svg(form));
  QGuiApplication::clipboard()->setMimeData(data);
}

void savePicture(Form& form, Dialogs& dialogs) {
  QList<FileKind> offered;
  for (const Kind& kind : kinds()) offered << kind.shown;
  const auto name = dialogs.SaveBox(QStringLiteral("Αποθήκευση της εικόνας · Save the picture"),
                                    proposedName(form), offered);
  if (!name) return;
  const QString suffix = QFileInfo(*name).suffix();
  for (const Kind& kind : kinds()) {
    if (suffix.compare(kind.shown.suffix, Qt::CaseInsensitive) == 0) {
      saveOrSay(*name, kind.make(form), dialogs);
    }
  }
}

void printPicture(Form& form, Dialogs& dialogs) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(form.accessibleName());
  const QSize size = form.canvas().size();
  printer.setPageOrientation(size.width() > size.height() ? QPageLayout::Landscape
                                                          : QPageLayout::Portrait);
  switch (dialogs.PrintBox(printer)) {
    case Printing::Cancelled:
      return;
    case Printing::NoPrinter:
      dialogs.MsgBox(QStringLiteral(
          "Δεν βρέθηκε εκτυπωτής. Αποθήκευσε την εικόνα ως PDF με Ctrl+S και τύπωσέ την αλλού.\n"
          "No printer was found. Save the picture as PDF with Ctrl+S and print it elsewhere."));
      return;
    case Printing::Wanted:
      break;
  }
  // Into a file as carefully as any other.
  if (!printer.outputFileName().isEmpty()) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter paper(&file);
    paper.setTitle(printer.docName());
    paper.setPageLayout(printer.pageLayout());
    printOn(paper, form);
    saveOrSay(printer.outputFileName(), file.data(), dialogs);
    return;
  }
  if (!printOn(printer, form)) {
    dialogs.MsgBox(QStringLiteral(
        "Η εκτύπωση δεν ξεκίνησε. Δες αν ο εκτυπωτής είναι ανοιχτός και συνδεδεμένος.\n"
        "The printing did not start. See whether the printer is switched on and connected."));
  }
}

}  // namespace lensbench
