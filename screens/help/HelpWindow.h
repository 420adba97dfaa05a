// The help window: sections of text in Greek and English, beside whatever screen is in front.
#pragma once

#include <functional>
#include <vector>

#include <QString>
#include <QTextBrowser>
#include <QUrl>
#include <QWidget>

namespace lensbench {

// A heading with words under it, and rows of a name and words. Headings and names are Greek ·
// English, words a Greek line and an English line, which stand side by side; none need be there.
struct HelpSection {
  struct Row {
    QString name;
    QString words;

    friend bool operator==(const Row&, const Row&) = default;
  };

  QString heading;
  QString lead;
  std::vector<Row> rows;
  // Where the section can be followed to: a word for whoever listens, and what it is called.
  QString link;
  QString linkName;

  friend bool operator==(const HelpSection&, const HelpSection&) = default;
};

class HelpWindow : public QWidget {
 public:
  HelpWindow();

  // Shows these from now on, without leaving the place that is being read.
  void show(const std::vector<HelpSection>& sections);
  // Keeps it above that window from now on, even when keys go there.
  void stayAbove(const QWidget& screen);
  // In sight: the first time beside that window, where there is room, and otherwise over a part of
  // it; later where it was left.
  void openBeside(const QWidget& screen);

  std::function<void()> onClose;               // after it has been closed
  std::function<void(const QString&)> onLink;  // the link of a section was followed

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void placeBeside(const QWidget& screen);
  void follow(const QUrl& address);

  QTextBrowser text_;
  QString reading_;  // the section whose link was followed last
  std::vector<HelpSection> sections_;
  bool placed_ = false;
};

}  // namespace lensbench
