#include "canvas/qt/Dialogs.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

#include "canvas/qt/Timer.h"

namespace lensbench {
namespace {

QString titleOr(const QString& title) { return title.isEmpty() ? programName : title; }

Dialogs*& current() {
  static QtDialogs toolkit;
  static Dialogs* inUse = &toolkit;
  if (inUse == nullptr) inUse = &toolkit;
  return inUse;
}

void showBox(QMessageBox::Icon icon, const QString& title, const QString& text,
             const QString& informative) {
  const TickHold hold;
  QMessageBox box(icon, titleOr(title), text, QMessageBox::Ok, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(informative);
  box.exec();
}

}  // namespace

void QtDialogs::MsgBox(const QString& text, const QString& title) {
  showBox(QMessageBox::NoIcon, title, text, {});
}

std::optional<QString> QtDialogs::InputBox(const QString& prompt, const QString& title,
                                           const QString& defaultAnswer) {
  const TickHold hold;
  bool accepted = false;
  const QString answer = QInputDialog::getText(QApplication::activeWindow(), titleOr(title), prompt,
                                               QLineEdit::Normal, defaultAnswer, &accepted);
  return accepted ? std::optional(answer) : std::nullopt;
}

void QtDialogs::Critical(const QString& title, const QString& text, const QString& informative) {
  showBox(QMessageBox::Critical, title, text, informative);
}

Dialogs& dialogs() { return *current(); }
void useDialogs(Dialogs* replacement) { current() = replacement; }

}  // namespace lensbench
