#include "canvas/qt/Dialogs.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

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

}  // namespace

void QtDialogs::MsgBox(const QString& text, const QString& title) {
  showBox(clock_, QMessageBox::NoIcon, title, text, {});
}

std::optional<QString> QtDialogs::InputBox(const QString& prompt, const QString& title,
                                           const QString& defaultAnswer) {
  const TickHold hold(clock_);
  bool accepted = false;
  const QString answer = QInputDialog::getText(QApplication::activeWindow(), titleOr(title), prompt,
                                               QLineEdit::Normal, defaultAnswer, &accepted);
  return accepted ? std::optional(answer) : std::nullopt;
}

void QtDialogs::Critical(const QString& title, const QString& text, const QString& informative) {
  showBox(clock_, QMessageBox::Critical, title, text, informative);
}

}  // namespace lensbench
