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

 signals:
  void Click();

 private:
  QString caption_;
  bool checked_ = false;
};

}  // namespace lensbench
