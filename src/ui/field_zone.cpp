#include "ui/field_zone.h"

#include <QDropEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace vrel {

FieldZone::FieldZone(std::function<bool(const QMimeData& mime)> accepts, QWidget* parent)
    : QWidget(parent), accepts_(std::move(accepts)), column_(new QVBoxLayout(this)) {
  setAcceptDrops(true);
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  column_->addStretch(1);
}

void FieldZone::setFields(const QList<ShownField>& fields) {
  const auto isShown = [](const FieldButton* button, const ShownField& shown) {
    return button->field() == shown.field && button->name() == shown.name;
  };
  if (std::equal(buttons_.begin(), buttons_.end(), fields.begin(), fields.end(), isShown)) {
    return;
  }
  QList<FieldButton*> arranged;
  for (const ShownField& shown : fields) {
    FieldButton* const button = takeButton(shown);
    column_->insertWidget(static_cast<int>(arranged.size()), button);
    // Only what is visible can have the focus.
    button->show();
    arranged << button;
  }
  for (FieldButton* left : std::exchange(buttons_, arranged)) {
    column_->removeWidget(left);
    left->hide();
    // It may be the one whose key or mouse press has brought the change.
    left->deleteLater();
  }
}

// The button of that field, taken out of the list, or a new one.
FieldButton* FieldZone::takeButton(const ShownField& shown) {
  const auto found = std::find_if(buttons_.begin(), buttons_.end(), [&shown](FieldButton* button) {
    return button->field() == shown.field;
  });
  if (found == buttons_.end()) {
    auto* button = new FieldButton(shown.field, shown.name, this);
    emit buttonAdded(button);
    return button;
  }
  FieldButton* const button = *found;
  buttons_.erase(found);
  button->setName(shown.name);
  return button;
}

int FieldZone::dropIndex(int y) const {
  const auto below = std::find_if(buttons_.begin(), buttons_.end(), [y](FieldButton* button) {
    return button->y() + button->height() > y;
  });
  return static_cast<int>(below - buttons_.begin());
}

void FieldZone::dragEnterEvent(QDragEnterEvent* event) {
  follow(*event);
}

void FieldZone::dragMoveEvent(QDragMoveEvent* event) {
  follow(*event);
}

void FieldZone::follow(QDragMoveEvent& event) {
  if (!accepts_(*event.mimeData())) {
    event.ignore();
    return;
  }
  event.setDropAction(Qt::MoveAction);
  event.accept();
  mark(dropIndex(event.position().toPoint().y()));
  emit draggedOver(event.position().toPoint());
}

void FieldZone::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
  mark(std::nullopt);
}

void FieldZone::dropEvent(QDropEvent* event) {
  mark(std::nullopt);
  if (!accepts_(*event->mimeData())) {
    event->ignore();
    return;
  }
  event->setDropAction(Qt::MoveAction);
  event->accept();
  emit dropped(dropIndex(event->position().toPoint().y()));
}

void FieldZone::mark(std::optional<int> index) {
  if (marked_ != index) {
    marked_ = index;
    update();
  }
}

// In the middle of the gap between two buttons.
int FieldZone::heightOfMark() const {
  const int gap = column_->spacing();
  if (buttons_.isEmpty()) {
    return column_->contentsMargins().top();
  }
  if (*marked_ < buttons_.size()) {
    return buttons_[*marked_]->y() - gap / 2 - 1;
  }
  return buttons_.last()->geometry().bottom() + gap / 2 + 1;
}

void FieldZone::paintEvent(QPaintEvent* /*event*/) {
  if (!marked_) {
    return;
  }
  QPainter painter(this);
  const QColor colour = palette().color(QPalette::Highlight);
  const int width = std::max(2, fontMetrics().lineWidth() * 2);
  painter.setPen(QPen(colour, width));
  painter.drawRect(rect().adjusted(width / 2, width / 2, -width / 2, -width / 2));
  const int margin = column_->contentsMargins().left();
  painter.drawLine(margin, heightOfMark(), this->width() - margin, heightOfMark());
}

}  // namespace vrel
