// Message and input boxes behind one interface, so that tests answer them.
#pragma once

#include <optional>

#include <QString>

namespace lensbench {

class Clock;

// The title of a box that is given none.
inline const QString programName = QStringLiteral("Lens Bench");

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual void MsgBox(const QString& text, const QString& title = {}) = 0;
  // What was entered; nothing when the box was cancelled.
  virtual std::optional<QString> InputBox(const QString& prompt, const QString& title,
                                          const QString& defaultAnswer) = 0;
  // The box of an error that ends the program.
  virtual void Critical(const QString& title, const QString& text, const QString& informative) = 0;

 protected:
  Dialogs() = default;
  Dialogs(const Dialogs&) = default;
  Dialogs& operator=(const Dialogs&) = default;
};

// The toolkit's boxes. The clock is held while one is open.
class QtDialogs : public Dialogs {
 public:
  explicit QtDialogs(Clock& clock) : clock_(clock) {}

  void MsgBox(const QString& text, const QString& title = {}) override;
  std::optional<QString> InputBox(const QString& prompt, const QString& title,
                                  const QString& defaultAnswer) override;
  void Critical(const QString& title, const QString& text, const QString& informative) override;

 private:
  Clock& clock_;
};

}  // namespace lensbench
