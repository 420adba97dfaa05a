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
  std::function<void()> whileOpen;  // what happens while the input box stands open
  QStringList messages;             // texts of the message boxes shown
  QStringList prompts;
  QStringList titles;  // of the input boxes
  QStringList defaults;

  void MsgBox(const QString& text, const QString& /*title*/) override { messages << text; }
  std::optional<QString> InputBox(const QString& prompt, const QString& title,
                                  const QString& defaultAnswer) override {
    prompts << prompt;
    titles << title;
    defaults << defaultAnswer;
    if (whileOpen) whileOpen();
    return answer;
  }
  void Critical(const QString& /*title*/, const QString& text,
                const QString& informative) override {
    messages << text << informative;
  }
};

}  // namespace lensbench
