#include "ui/field_button.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <array>
#include <cstring>

namespace vrel {

namespace {

constexpr int kDragDistance = 4;

struct KeyStep {
  int key;
  FieldStep step;
};

constexpr std::array<KeyStep, 4> kKeySteps = {{
    {Qt::Key_Up, FieldStep::Up},
    {Qt::Key_Down, FieldStep::Down},
    {Qt::Key_Left, FieldStep::Back},
    {Qt::Key_Right, FieldStep::On},
}};

const KeyStep* stepOfKey(int key) {
  for (const KeyStep& each : kKeySteps) {
    if (each.key == key) {
      return &each;
    }
  }
  return nullptr;
}

}  // namespace

FieldButton::FieldButton(int field, const QString& name, QWidget* parent)
    : QPushButton(parent), field_(field) {
  setObjectName(QStringLiteral("fieldButton%1").arg(field));
  setFlat(true);
  // Enter is the dialog's.
  setAutoDefault(false);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleDescription(tr("Ctrl with an arrow key moves the field."));
  setName(name);
  connect(this, &QPushButton::clicked, this,
          [this] { emit menuWanted(mapToGlobal(rect().bottomLeft())); });
}

void FieldButton::setName(const QString& name) {
  name_ = name;
  setText(QString(name).replace(u'&', QLatin1String("&&")));
  setAccessibleName(name);
}

QByteArray FieldButton::identity() const {
  const auto address = static_cast<quint64>(reinterpret_cast<quintptr>(this));
  QByteArray bytes(sizeof(address), '\0');
  std::memcpy(bytes.data(), &address, sizeof(address));
  return bytes;
}

void FieldButton::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    pressed_ = event->position().toPoint();
  }
  QPushButton::mousePressEvent(event);
}

void FieldButton::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  // Pressed near its edge, the button is left before the distance is reached.
  if (!event->buttons().testFlag(Qt::LeftButton) || !pressed_ ||
      (at - *pressed_).manhattanLength() < kDragDistance) {
    QPushButton::mouseMoveEvent(event);
    return;
  }
  pressed_.reset();
  // The release that ends the drag does not come here.
  setDown(false);
  // Nothing may be done after this: the drop may have replaced the button.
  emit dragWanted();
}

void FieldButton::mouseReleaseEvent(QMouseEvent* event) {
  pressed_.reset();
  QPushButton::mouseReleaseEvent(event);
}

void FieldButton::keyPressEvent(QKeyEvent* event) {
  const KeyStep* const step = stepOfKey(event->key());
  const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
  if (step != nullptr && (held == Qt::ControlModifier || held == Qt::AltModifier)) {
    emit stepWanted(step->step);
  } else if (step != nullptr && held == Qt::NoModifier) {
    emit neighbourWanted(step->step);
  } else {
    QPushButton::keyPressEvent(event);
  }
}

void FieldButton::contextMenuEvent(QContextMenuEvent* event) {
  emit menuWanted(event->globalPos());
}

}  // namespace vrel
