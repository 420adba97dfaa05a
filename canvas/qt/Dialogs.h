// Message, input, file and print boxes behind one interface, so that tests answer them.
#pragma once

#include <optional>

#include <QList>
#include <QString>

class QPrinter;

namespace lensbench {

class Clock;

// The title of a box that is given none.
inline const QString programName = QStringLiteral("Lens Bench");

// A kind of file as a box offers it: a name for people, and the suffix without its dot.
struct FileKind {
  QString name;
  QString suffix;
};

// What came of asking for a printer.
enum class Printing { Wanted, Cancelled, NoPrinter };

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual void MsgBox(const QString& text, const QString& title = {}) = 0;
  // What was entered; nothing when the box was cancelled.
  virtual std::optional<QString> InputBox(const QString& prompt, const QString& title,
                                          const QString& defaultAnswer) = 0;
  // The file to save to, whose name ends in the suffix of one of the kinds; nothing when the box
  // was cancelled. The box proposes a name, and asks before a file that exists is taken.
  virtual std::optional<QString> SaveBox(const QString& title, const QString& proposed,
                                         const QList<FileKind>& kinds) = 0;
  // Lets a person choose a printer, its paper and margins, beginning with those given.
  virtual Printing PrintBox(QPrinter& printer) = 0;
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
  std::optional<QString> SaveBox(const QString& title, const QString& proposed,
                                 const QList<FileKind>& kinds) override;
  Printing PrintBox(QPrinter& printer) override;
  void Critical(const QString& title, const QString& text, const QString& informative) override;

 private:
  Clock& clock_;
  QString folder_;  // where a file was saved last; empty: none yet
};

}  // namespace lensbench
