#include "ui/fitting.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMap>
#include <QTreeView>

namespace vrel::test {

namespace {

bool isClipped(const QLabel& label) {
  if (label.wordWrap()) {
    return label.heightForWidth(label.width()) > label.height();
  }
  const QSize needed = label.sizeHint();
  return needed.width() > label.width() || needed.height() > label.height();
}

bool isClipped(const QAbstractButton& button) {
  const QSize needed = button.sizeHint();
  return needed.width() > button.width() || needed.height() > button.height();
}

// What stands in them may be given less room than it would like.
bool isClipped(const QWidget& widget) {
  const QSize needed = widget.minimumSizeHint();
  return needed.width() > widget.width() || needed.height() > widget.height();
}

template <typename Widget>
void addClipped(const QWidget& window, QString (*textOf)(const Widget&), QStringList& clipped) {
  for (const Widget* widget : window.findChildren<Widget*>()) {
    if (widget->isVisible() && !textOf(*widget).isEmpty() && isClipped(*widget)) {
      clipped << QStringLiteral("%1: %2").arg(widget->objectName(), textOf(*widget));
    }
  }
}

// The last section is stretched, or has the rest of the view to itself.
void addClippedHeadings(const QWidget& window, QStringList& clipped) {
  for (const auto* view : window.findChildren<QTreeView*>()) {
    const QHeaderView* header = view->header();
    for (int section = 0; header->isVisible() && section < header->count(); ++section) {
      const int needed = header->sectionSizeHint(section);
      if (!header->isSectionHidden(section) && needed > header->sectionSize(section)) {
        clipped << QStringLiteral("%1: %2").arg(
            view->objectName(), header->model()->headerData(section, Qt::Horizontal).toString());
      }
    }
  }
}

QString mnemonicOf(const QString& text) {
  for (qsizetype at = text.indexOf(u'&'); at >= 0 && at + 1 < text.size();
       at = text.indexOf(u'&', at + 2)) {
    if (text[at + 1] != u'&') {
      return text[at + 1].toLower();
    }
  }
  return {};
}

}  // namespace

QStringList clippedTexts(const QWidget& window) {
  QStringList clipped;
  addClipped<QLabel>(
      window, [](const QLabel& label) { return label.text(); }, clipped);
  addClipped<QAbstractButton>(
      window, [](const QAbstractButton& button) { return button.text(); }, clipped);
  addClipped<QGroupBox>(
      window, [](const QGroupBox& box) { return box.title(); }, clipped);
  addClipped<QComboBox>(
      window, [](const QComboBox& box) { return box.currentText(); }, clipped);
  addClippedHeadings(window, clipped);
  return clipped;
}

QStringList sharedMnemonics(const QWidget& window) {
  QStringList texts;
  for (const auto* button : window.findChildren<QAbstractButton*>()) {
    if (button->isVisible() && button->isEnabled()) {
      texts << button->text();
    }
  }
  for (const auto* label : window.findChildren<QLabel*>()) {
    if (label->isVisible() && label->buddy() != nullptr && label->buddy()->isEnabled()) {
      texts << label->text();
    }
  }
  for (const auto* box : window.findChildren<QGroupBox*>()) {
    texts << (box->isVisible() && box->isEnabled() ? box->title() : QString());
  }
  return sharedMnemonics(texts);
}

QStringList sharedMnemonics(const QStringList& texts) {
  QMap<QString, QStringList> byLetter;
  for (const QString& text : texts) {
    byLetter[mnemonicOf(text)] << text;
  }
  byLetter.remove({});
  QStringList shared;
  for (auto letter = byLetter.cbegin(); letter != byLetter.cend(); ++letter) {
    if (letter->size() > 1) {
      shared << letter.key() + QStringLiteral(": ") + letter->join(QStringLiteral(", "));
    }
  }
  return shared;
}

}  // namespace vrel::test
