#include "ui/choice_delegate.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <algorithm>

namespace vrel {

namespace {

QStringList textsOf(const QModelIndex& index) {
  return index.data(ChoiceDelegate::kTextsRole).toStringList();
}

const QStyle& styleOf(const QStyleOptionViewItem& option) {
  return option.widget == nullptr ? *QApplication::style() : *option.widget->style();
}

QStyleOptionComboBox boxOf(const QStyleOptionViewItem& option, const QModelIndex& index) {
  QStyleOptionComboBox box;
  box.rect = option.rect;
  box.direction = option.direction;
  box.fontMetrics = option.fontMetrics;
  box.palette = option.palette;
  box.currentText = index.data(Qt::DisplayRole).toString();
  box.state = option.state & (QStyle::State_Active | QStyle::State_HasFocus);
  if (index.flags().testFlag(Qt::ItemIsEditable)) {
    box.state |= QStyle::State_Enabled;
  } else {
    box.palette.setCurrentColorGroup(QPalette::Disabled);
  }
  return box;
}

}  // namespace

void ChoiceDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  if (textsOf(index).isEmpty()) {
    QStyledItemDelegate::paint(painter, option, index);
    return;
  }
  const QStyleOptionComboBox box = boxOf(option, index);
  const QStyle& style = styleOf(option);
  painter->save();
  painter->setFont(option.font);
  style.drawComplexControl(QStyle::CC_ComboBox, &box, painter, option.widget);
  style.drawControl(QStyle::CE_ComboBoxLabel, &box, painter, option.widget);
  painter->restore();
}

QSize ChoiceDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QStringList texts = textsOf(index);
  if (texts.isEmpty()) {
    return QStyledItemDelegate::sizeHint(option, index);
  }
  const QStyleOptionComboBox box = boxOf(option, index);
  QSize content(0, option.fontMetrics.height());
  for (const QString& text : texts) {
    content.setWidth(std::max(content.width(), option.fontMetrics.horizontalAdvance(text)));
  }
  return styleOf(option).sizeFromContents(QStyle::CT_ComboBox, &box, content, option.widget);
}

QWidget* ChoiceDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                      const QModelIndex& index) const {
  auto* box = new QComboBox(parent);
  box->addItems(textsOf(index));
  box->setAccessibleName(
      index.model()->headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
  // The interface is const, what comes of the editor's work is not.
  auto* self = const_cast<ChoiceDelegate*>(this);
  connect(box, &QComboBox::activated, self, [self, box] { self->finish(box); });
  // A letter may have chosen before the list could open.
  QTimer::singleShot(0, box, [box] {
    if (box->isVisible()) {
      box->showPopup();
    }
  });
  return box;
}

void ChoiceDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  static_cast<QComboBox*>(editor)->setCurrentIndex(index.data(kChosenRole).toInt());
}

void ChoiceDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                  const QModelIndex& index) const {
  model->setData(index, static_cast<QComboBox*>(editor)->currentIndex(), kChosenRole);
}

bool ChoiceDelegate::eventFilter(QObject* editor, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    // The key must not reach the dialog, whose default button would close it under the editor.
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      finish(static_cast<QWidget*>(editor));
      return true;
    }
  }
  return QStyledItemDelegate::eventFilter(editor, event);
}

void ChoiceDelegate::finish(QWidget* editor) {
  emit commitData(editor);
  emit closeEditor(editor);
}

}  // namespace vrel
