#include "canvas/qt/Dialogs.h"

#include <algorithm>

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QSettings>
#include <QStandardPaths>

#include "canvas/qt/AnswerLine.h"
#include "canvas/qt/Clock.h"

namespace lensbench {
namespace {

QString titleOr(const QString& title) { return title.isEmpty() ? programName : title; }

void showBox(Clock& clock, QMessageBox::Icon icon, const QString& title, const QString& text,
             const QString& informative) {
  const TickHold hold(clock);
  QMessageBox box(icon, titleOr(title), text, QMessageBox::Ok, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(informative);
  box.exec();
}

// A box for files would write down in the toolkit's settings what folders were visited.
void keepNoSettings() {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

QString picturesFolder() {
  const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  return QFileInfo(pictures).isDir() ? pictures : QDir::homePath();
}

QString filterOf(const FileKind& kind) {
  return QStringLiteral("%1 (*.%2)").arg(kind.name, kind.suffix);
}

}  // namespace

void QtDialogs::MsgBox(const QString& text, const QString& title) {
  showBox(clock_, QMessageBox::NoIcon, title, text, {});
}

std::optional<QString> QtDialogs::InputBox(const QString& prompt, const QString& title,
                                           const QString& defaultAnswer) {
  const TickHold hold(clock_);
  QInputDialog box(QApplication::activeWindow());
  box.setWindowTitle(titleOr(title));
  box.setLabelText(prompt);
  box.setTextValue(defaultAnswer);
  AnswerLine::addTo(box);
  return box.exec() == QDialog::Accepted ? std::optional(box.textValue()) : std::nullopt;
}

std::optional<QString> QtDialogs::SaveBox(const QString& title, const QString& proposed,
                                          const QList<FileKind>& kinds) {
  const TickHold hold(clock_);
  keepNoSettings();
  QFileDialog box(QApplication::activeWindow(), titleOr(title),
                  folder_.isEmpty() ? picturesFolder() : folder_);
  box.setAcceptMode(QFileDialog::AcceptSave);
  QStringList filters;
  for (const FileKind& kind : kinds) filters << filterOf(kind);
  box.setNameFilters(filters);
  const auto chosenSuffix = [&] {
    return kinds.value(filters.indexOf(box.selectedNameFilter()), kinds.front()).suffix;
  };
  const auto addSuffix = [&] { box.setDefaultSuffix(chosenSuffix()); };
  QObject::connect(&box, &QFileDialog::filterSelected, &box, addSuffix);
  addSuffix();
  box.selectFile(proposed);
  while (box.exec() == QDialog::Accepted) {
    QString name = box.selectedFiles().constFirst();
    folder_ = QFileInfo(name).path();
    const QString suffix = QFileInfo(name).suffix();
    const bool known = std::any_of(kinds.begin(), kinds.end(), [&](const FileKind& kind) {
      return suffix.compare(kind.suffix, Qt::CaseInsensitive) == 0;
    });
    // What stands behind the dot of "n=1.5" is none.
    if (!known) name += QLatin1Char('.') + chosenSuffix();
    if (known || !QFileInfo::exists(name)) return name;
    // The box has not asked about this name yet.
    box.selectFile(name);
  }
  return std::nullopt;
}

Printing QtDialogs::PrintBox(QPrinter& printer) {
  const TickHold hold(clock_);
  keepNoSettings();
  if (QPrinterInfo::availablePrinterNames().isEmpty()) return Printing::NoPrinter;
  QPrintDialog box(&printer, QApplication::activeWindow());
  // There is one page.
  box.setOption(QAbstractPrintDialog::PrintPageRange, false);
  return box.exec() == QDialog::Accepted ? Printing::Wanted : Printing::Cancelled;
}

void QtDialogs::Critical(const QString& title, const QString& text, const QString& informative) {
  showBox(clock_, QMessageBox::Critical, title, text, informative);
}

}  // namespace lensbench
