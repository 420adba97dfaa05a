#include "canvas/qt/MenuBar.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QShortcut>
#include <QStyleOptionMenuItem>
#include <QToolTip>

#include "canvas/qt/Contrast.h"
#include "canvas/qt/MenuEntry.h"

namespace lensbench {
namespace {

const QString mark = QStringLiteral("✓ ");

// The toolkit's styles know check marks in menus only, not in the bar itself.
class StyleWithMarks : public QProxyStyle {
 public:
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override {
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto* entry = markable(option);
    return entry == nullptr ? size : size + QSize(room(*entry), 0);
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* entry = element == CE_MenuBarItem ? markable(option) : nullptr;
    if (entry == nullptr) return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionMenuItem plate = *entry;
    plate.text.clear();
    QProxyStyle::drawControl(element, &plate, painter, widget);

    const int caption = entry->fontMetrics.size(Qt::TextShowMnemonic, entry->text).width();
    const int beside = (entry->rect.width() - room(*entry) - caption) / 2;
    const QRect words = entry->rect.adjusted(beside, 0, -beside, 0);
    const auto write = [&](Qt::Alignment side, const QString& text) {
      drawItemText(
          painter, words, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextShowMnemonic,
          entry->palette, entry->state.testFlag(State_Enabled), text,
          entry->state.testFlag(State_Sunken) ? QPalette::HighlightedText : QPalette::ButtonText);
    };
    if (entry->checked) write(Qt::AlignLeft, mark);
    write(Qt::AlignRight, entry->text);
  }

 private:
  static const QStyleOptionMenuItem* markable(const QStyleOption* option) {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const bool can =
        entry != nullptr && entry->checkType != QStyleOptionMenuItem::CheckType::NotCheckable;
    return can ? entry : nullptr;
  }
  static int room(const QStyleOptionMenuItem& entry) {
    return entry.fontMetrics.horizontalAdvance(mark);
  }
};

}  // namespace

MenuBar::MenuBar(QWidget* form) : QMenuBar(form) {
  setAccessibleName(QStringLiteral("Εντολές · Commands"));
  auto* style = new StyleWithMarks;
  style->setParent(this);
  setStyle(style);
  connect(new QShortcut(Qt::Key_F10, form), &QShortcut::activated, this, &MenuBar::enter);
  connect(this, &QMenuBar::triggered, this, &MenuBar::leave);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* from, const QWidget* to) {
    if (to == this) before_ = from;
  });
}

void MenuBar::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const {
  QMenuBar::initStyleOption(option, action);
  if (action == nullptr) return;
  // The styles show where the keyboard is only while a menu hangs from the entry.
  if (hasFocus() && action == activeAction()) option->state |= QStyle::State_Sunken;
  if (!action->isCheckable()) return;
  option->checkType = QStyleOptionMenuItem::NonExclusive;
  option->checked = action->isChecked();
}

void MenuBar::paintEvent(QPaintEvent* event) {
  QMenuBar::paintEvent(event);
  QPainter painter(this);
  painter.setPen(QPen(warningOn(palette().color(QPalette::Window)), 2));
  for (QAction* action : actions()) {
    const auto* entry = qobject_cast<MenuEntry*>(action);
    if (entry == nullptr || !entry->warned()) continue;
    painter.drawRect(actionGeometry(action).adjusted(1, 1, -1, -1));
  }
}

bool MenuBar::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QMenuBar::event(event);
  const auto& help = *static_cast<const QHelpEvent*>(event);
  const QAction* entry = actionAt(help.pos());
  QToolTip::showText(help.globalPos(), entry == nullptr ? QString() : entry->toolTip(), this);
  return true;
}

void MenuBar::keyReleaseEvent(QKeyEvent* event) {
  QMenuBar::keyReleaseEvent(event);
  if (event->key() == Qt::Key_Escape) leave();
}

void MenuBar::enter() {
  if (actions().isEmpty() || hasFocus()) return;
  setFocus(Qt::MenuBarFocusReason);
  setActiveAction(actions().constFirst());
}

void MenuBar::leave() {
  if (hasFocus() && before_) before_->setFocus(Qt::MenuBarFocusReason);
}

}  // namespace lensbench
