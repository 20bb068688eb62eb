#include "ui/z_tabs.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <algorithm>

namespace vrel {

namespace {

// A tab's text is cut off here; its tool tip shows more of it.
constexpr qsizetype kLongestTab = 40;
constexpr qsizetype kLongestToolTip = 512;

QToolButton* stepButton(const char* name, Qt::ArrowType arrow, const QString& accessibleName,
                        QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(QLatin1String(name));
  button->setArrowType(arrow);
  button->setAccessibleName(accessibleName);
  button->setToolTip(accessibleName);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

// The toolkit takes "&" in a tab as the mark of a mnemonic.
QString tabText(const QString& text) {
  QString shown = text.size() > kLongestTab ? text.left(kLongestTab - 1) + u'…' : text;
  return shown.replace(u'&', QLatin1String("&&"));
}

}  // namespace

ZTabs::ZTabs(QWidget* parent)
    : QWidget(parent),
      back_(stepButton("zTabsDecrement", Qt::LeftArrow, tr("Previous page"), this)),
      forward_(stepButton("zTabsIncrement", Qt::RightArrow, tr("Next page"), this)),
      bar_(new QTabBar(this)) {
  setObjectName(QStringLiteral("zTabs"));
  bar_->setObjectName(QStringLiteral("zTabBar"));
  bar_->setAccessibleName(tr("Pages"));
  bar_->setExpanding(false);
  bar_->setUsesScrollButtons(true);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(back_);
  layout->addWidget(forward_);
  layout->addWidget(bar_, 1);
  connect(back_, &QToolButton::clicked, this, &ZTabs::decrementZIndex);
  connect(forward_, &QToolButton::clicked, this, &ZTabs::incrementZIndex);
  connect(bar_, &QTabBar::currentChanged, this, [this](int tab) { choose(first_ + tab); });
  hide();
}

void ZTabs::setPages(int count, int current, PageText text) {
  count_ = count;
  current_ = current;
  text_ = std::move(text);
  rebuildTabs();
  setVisible(count_ > 0);
}

void ZTabs::incrementZIndex() {
  choose(current_ + 1);
}

void ZTabs::decrementZIndex() {
  choose(current_ - 1);
}

void ZTabs::choose(int page) {
  if (page != current_ && page >= 0 && page < count_) {
    current_ = page;
    emit zIndexChanged(page);
  }
}

void ZTabs::rebuildTabs() {
  const QSignalBlocker noChoice(bar_);
  const int tabs = std::min(count_, kMostTabs);
  first_ = std::clamp(current_ - kMostTabs / 2, 0, count_ - tabs);
  while (bar_->count() > tabs) {
    bar_->removeTab(bar_->count() - 1);
  }
  for (int tab = 0; tab < tabs; ++tab) {
    const QString text = text_(first_ + tab);
    if (tab == bar_->count()) {
      bar_->addTab(QString());
    }
    bar_->setTabText(tab, tabText(text));
    bar_->setTabToolTip(tab, text.left(kLongestToolTip));
  }
  bar_->setCurrentIndex(current_ - first_);
  back_->setEnabled(current_ > 0);
  forward_->setEnabled(current_ + 1 < count_);
}

}  // namespace vrel
