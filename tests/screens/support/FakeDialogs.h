// Dialogs that are answered by the test instead of a person.
#pragma once

#include <functional>
#include <optional>

#include <QStringList>

#include "canvas/qt/Dialogs.h"

namespace lensbench {

class FakeDialogs : public Dialogs {
 public:
  std::optional<QString> answer;    // to every input box; without one it is cancelled
  std::function<void()> whileOpen;  // what happens while a box that asks stands open
  QStringList messages;             // texts of the message boxes shown
  QStringList prompts;
  QStringList titles;  // of the boxes that ask
  QStringList defaults;

  std::optional<QString> fileName;  // to every box for a file; without one it is cancelled
  QStringList proposed;             // names of files
  QList<FileKind> kinds;            // of the box for a file that was shown last
  std::function<Printing(QPrinter&)> printing;  // without it every print box is cancelled

  void MsgBox(const QString& text, const QString& /*title*/) override { messages << text; }
  std::optional<QString> InputBox(const QString& prompt, const QString& title,
                                  const QString& defaultAnswer) override {
    prompts << prompt;
    titles << title;
    defaults << defaultAnswer;
    if (whileOpen) whileOpen();
    return answer;
  }
  std::optional<QString> SaveBox(const QString& title, const QString& proposedName,
                                 const QList<FileKind>& offered) override {
    titles << title;
    proposed << proposedName;
    kinds = offered;
    if (whileOpen) whileOpen();
    return fileName;
  }
  Printing PrintBox(QPrinter& printer) override {
    if (whileOpen) whileOpen();
    return printing ? printing(printer) : Printing::Cancelled;
  }
  void Critical(const QString& /*title*/, const QString& text,
                const QString& informative) override {
    messages << text << informative;
  }
};

}  // namespace lensbench
