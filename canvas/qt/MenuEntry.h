// A command that stands in the menu bar itself.
#pragma once

#include <QAction>
#include <QString>

namespace lensbench {

class Form;

class MenuEntry : public QAction {
  Q_OBJECT

 public:
  MenuEntry(Form& form, const QString& name, const QString& caption);

  QString Caption() const { return caption_; }
  // The check mark; only code sets and takes it. Once it has been set or taken, the entry is one
  // that carries a mark and keeps room for it.
  bool Checked() const noexcept { return checked_; }
  void Checked(bool checked);
  // What choosing it now brings about, Greek line and English line, said below the tool tip; while
  // it is not empty the entry has an edge in the colour of warnings.
  void Warning(const QString& words);
  bool warned() const noexcept { return warned_; }

 signals:
  void Click();

 private:
  QString caption_;
  bool checked_ = false;
  bool warned_ = false;
  QString calm_;  // the tool tip without the warning
};

}  // namespace lensbench
