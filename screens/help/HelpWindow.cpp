#include "screens/help/HelpWindow.h"

#include <algorithm>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWindow>

namespace lensbench {
namespace {

// Pixels.
constexpr int narrowest = 280;
constexpr int margin = 12;  // around the text
constexpr int frame = 40;   // room for the window's own frame, above and below
constexpr int sides = 10;   // and beside it
constexpr int clear = 24;   // of the sliders at the edges of a screen that it stands on

// Greek and English side by side.
QString inColumns(const QString& words) {
  return QStringLiteral(
             "<table width='96%' cellspacing='0' cellpadding='0'><tr><td width='49%' "
             "style='padding-right:6px'>%1</td>"
             "<td width='50%'>%2</td></tr></table>")
      .arg(words.section('\n', 0, 0).toHtmlEscaped(),
           words.section('\n', 1).toHtmlEscaped().replace('\n', QStringLiteral("<br>")));
}

QString html(const HelpSection& section, qsizetype number) {
  QString page = QStringLiteral("<h3><a name='%1'></a>%2</h3>")
                     .arg(number)
                     .arg(section.heading.toHtmlEscaped());
  if (!section.link.isEmpty()) {
    page += QStringLiteral("<p><a href='%1'>%2</a></p>")
                .arg(section.link.toHtmlEscaped(), section.linkName.toHtmlEscaped());
  }
  if (!section.lead.isEmpty()) page += inColumns(section.lead);
  for (const HelpSection::Row& row : section.rows) {
    page += QStringLiteral("<p style='margin-bottom:2px'><b>%1</b></p>%2")
                .arg(row.name.toHtmlEscaped(), inColumns(row.words));
  }
  return page;
}

// The headings of all sections, each a way to it.
QString contents(const std::vector<HelpSection>& sections) {
  QString page;
  for (std::size_t i = 0; i < sections.size(); ++i) {
    page +=
        QStringLiteral("<a href='#%1'>%2</a><br>").arg(i).arg(sections[i].heading.toHtmlEscaped());
  }
  return QStringLiteral("<p>%1</p>").arg(page);
}

}  // namespace

HelpWindow::HelpWindow() : QWidget(nullptr, Qt::Dialog) {
  setObjectName("help");
  setWindowTitle(QStringLiteral("Βοήθεια · Help"));
  setAccessibleName(windowTitle());
  text_.setObjectName("helpText");
  text_.setAccessibleName(QStringLiteral("Κείμενο βοήθειας · Help text"));
  text_.setFrameShape(QFrame::NoFrame);
  text_.document()->setDocumentMargin(margin);
  text_.setOpenLinks(false);
  connect(&text_, &QTextBrowser::anchorClicked, this, &HelpWindow::follow);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(&text_);
}

void HelpWindow::show(const std::vector<HelpSection>& sections) {
  if (sections == sections_) return;
  // Another screen is read from its beginning.
  const bool sameScreen = !sections_.empty() && !sections.empty() &&
                          sections_.front().heading == sections.front().heading;
  const int place = text_.verticalScrollBar()->value();
  sections_ = sections;
  QString page = contents(sections_);
  qsizetype number = 0;
  for (const HelpSection& section : sections_) page += html(section, number++);
  text_.setHtml(page);
  if (sameScreen) {
    text_.verticalScrollBar()->setValue(place);
  } else if (reading_.isEmpty()) {
    text_.verticalScrollBar()->setValue(0);
  } else {
    text_.scrollToAnchor(reading_);
  }
}

void HelpWindow::follow(const QUrl& address) {
  if (address.hasFragment()) return text_.scrollToAnchor(address.fragment());
  const QString link = address.toString();
  for (std::size_t i = 0; i < sections_.size(); ++i) {
    if (sections_[i].link == link) reading_ = QString::number(i);
  }
  if (onLink) onLink(link);
}

void HelpWindow::stayAbove(const QWidget& screen) {
  winId();  // from here on there is a window handle
  if (windowHandle()->transientParent() == screen.windowHandle()) return;
  const bool seen = isVisible();
  const QRect place = geometry();
  // A window manager is told when a window is shown.
  hide();
  windowHandle()->setTransientParent(screen.windowHandle());
  if (!seen) return;
  setGeometry(place);
  setAttribute(Qt::WA_ShowWithoutActivating, true);
  QWidget::show();
  setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void HelpWindow::openBeside(const QWidget& screen) {
  if (!placed_) placeBeside(screen);
  placed_ = true;
  reading_.clear();
  QWidget::show();
  raise();
  activateWindow();
  text_.setFocus();
}

void HelpWindow::placeBeside(const QWidget& screen) {
  const QRect room = screen.screen()->availableGeometry();
  const QRect taken = screen.frameGeometry() & room;
  const int wanted = std::min(80 * fontMetrics().averageCharWidth(), room.width());
  const int right = room.right() - taken.right();
  const int left = taken.left() - room.left();
  const int beside = std::max(left, right);
  if (beside >= narrowest) {
    const int width = std::min(wanted, beside - sides);
    resize(width, std::max(room.height() - 2 * frame, narrowest));
    move(right >= left ? taken.right() + 1 : taken.left() - width - sides, room.top());
    return;
  }
  const QSize size(wanted, room.height() * 2 / 3);
  const QPoint corner = room.bottomRight() - QPoint(clear, clear);
  setGeometry(QRect(corner - QPoint(size.width(), size.height()), size) & room);
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void HelpWindow::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  if (onClose) onClose();
}

}  // namespace lensbench
