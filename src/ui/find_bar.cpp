#include "ui/find_bar.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QShortcut>
#include <QStyle>
#include <QToolButton>

namespace vrel {

namespace {

struct FindKey {
  QKeyCombination keys;
  void (FindBar::*slot)();
};

// In the whole window.
constexpr FindKey kWindowKeys[] = {
    {Qt::CTRL | Qt::Key_F, &FindBar::open},
    {Qt::Key_F3, &FindBar::searchForward},
    {Qt::SHIFT | Qt::Key_F3, &FindBar::searchBackward},
};

// While typing the text.
constexpr FindKey kTypingKeys[] = {
    {Qt::Key_Return, &FindBar::searchForward},
    {Qt::Key_Enter, &FindBar::searchForward},
    {Qt::SHIFT | Qt::Key_Return, &FindBar::searchBackward},
    {Qt::SHIFT | Qt::Key_Enter, &FindBar::searchBackward},
};

template <typename Button>
Button* named(Button* button, const char* name) {
  button->setObjectName(QLatin1String(name));
  return button;
}

}  // namespace

FindBar::FindBar(QWidget* parent)
    : QWidget(parent),
      edit_(named(new QLineEdit(this), "findText")),
      next_(named(new QPushButton(tr("Ne&xt"), this), "findNextButton")),
      previous_(named(new QPushButton(tr("Pre&vious"), this), "findPreviousButton")),
      message_(named(new QLabel(this), "findMessage")) {
  setObjectName(QStringLiteral("findBar"));
  buildParts();
  addShortcuts();
  connect(edit_, &QLineEdit::textChanged, this, &FindBar::textChanged);
  connect(next_, &QPushButton::clicked, this, &FindBar::searchForward);
  connect(previous_, &QPushButton::clicked, this, &FindBar::searchBackward);
  textChanged();
  hide();
}

QString FindBar::text() const {
  return edit_->text();
}

void FindBar::open() {
  QWidget* const focus = QApplication::focusWidget();
  // The menu bar has the keyboard only until something is done with it.
  const bool inMenus = qobject_cast<QMenuBar*>(focus) != nullptr;
  if (focus != nullptr && focus != this && !isAncestorOf(focus) && !inMenus) {
    focusBefore_ = focus;
  }
  show();
  edit_->selectAll();
  edit_->setFocus(Qt::ShortcutFocusReason);
}

void FindBar::dismiss() {
  say({});
  hide();
  // A cell's editor, say, is gone by now; what it belonged to takes its place.
  QWidget* const next = focusBefore_ != nullptr ? focusBefore_.data() : parentWidget();
  if (next != nullptr) {
    next->setFocus(Qt::OtherFocusReason);
  }
  emit closed();
}

void FindBar::searchForward() {
  if (text().isEmpty()) {
    open();
    return;
  }
  forward_ = true;
  say({});
  emit findNext(text());
}

void FindBar::searchBackward() {
  if (text().isEmpty()) {
    open();
    return;
  }
  forward_ = false;
  say({});
  emit findPrevious(text());
}

void FindBar::showResult(const SearchResult& result) {
  if (result.outcome == SearchOutcome::NotFound) {
    say(tr("Not found"));
  } else if (result.outcome == SearchOutcome::Cancelled) {
    say(tr("Cancelled"));
  } else if (result.wrapped) {
    say(forward_ ? tr("Continued from the top") : tr("Continued from the bottom"));
  } else {
    say({});
  }
}

void FindBar::buildParts() {
  auto* label = named(new QLabel(tr("Fi&nd:"), this), "findLabel");
  label->setBuddy(edit_);
  edit_->setClearButtonEnabled(true);
  message_->setTextFormat(Qt::PlainText);
  auto* close = named(new QToolButton(this), "findCloseButton");
  close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  close->setAutoRaise(true);
  close->setFocusPolicy(Qt::TabFocus);
  close->setAccessibleName(tr("Close the find bar"));
  close->setToolTip(tr("Close the find bar (Esc)"));
  connect(close, &QToolButton::clicked, this, &FindBar::dismiss);
  auto* layout = new QHBoxLayout(this);
  const int margin = style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing);
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->addWidget(label);
  layout->addWidget(edit_, 1);
  layout->addWidget(next_);
  layout->addWidget(previous_);
  layout->addWidget(message_, 1);
  layout->addWidget(close);
}

void FindBar::addShortcuts() {
  QWidget* const window = parentWidget() != nullptr ? parentWidget() : this;
  for (const FindKey& key : kWindowKeys) {
    auto* shortcut = new QShortcut(QKeySequence(key.keys), window);
    connect(shortcut, &QShortcut::activated, this, key.slot);
  }
  for (const FindKey& key : kTypingKeys) {
    auto* shortcut = new QShortcut(QKeySequence(key.keys), edit_);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, this, key.slot);
  }
  auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, this, &FindBar::dismiss);
}

void FindBar::textChanged() {
  const bool any = !text().isEmpty();
  next_->setEnabled(any);
  previous_->setEnabled(any);
  say({});
}

void FindBar::say(const QString& message) {
  message_->setText(message);
  if (!message.isEmpty()) {
    // So that a screen reader tells it without being moved there.
    QAccessibleEvent alert(message_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
  }
}

}  // namespace vrel
