#include "ui/configure_layout_dialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "expr/ui/to_text.h"

namespace vrel {

namespace {

constexpr const char* kMimeType = "x-qnt/x-order";

// In characters and lines of text.
constexpr int kWidth = 92;
constexpr int kHeight = 24;

struct ZoneTexts {
  const char* objectName;
  const char* title;
  const char* explanation;
  const char* menuEntry;
};

// In the order of `kLayoutAxes`.
constexpr std::array<ZoneTexts, kLayoutAxes.size()> kZones = {{
    {"columnsZone", QT_TRANSLATE_NOOP("ConfigureLayoutDialog", "Reordering columns:"),
     QT_TRANSLATE_NOOP("ConfigureLayoutDialog",
                       "Drag buttons up and down within the area below to rearrange column order"),
     QT_TRANSLATE_NOOP("ConfigureLayoutDialog", "Make a &Column")},
    {"tabsZone", QT_TRANSLATE_NOOP("ConfigureLayoutDialog", "Creating tabs:"),
     QT_TRANSLATE_NOOP("ConfigureLayoutDialog",
                       "Drag and drop buttons into this area to create tabs in the report"),
     QT_TRANSLATE_NOOP("ConfigureLayoutDialog", "Make &Tabs")},
    {"spreadZone", QT_TRANSLATE_NOOP("ConfigureLayoutDialog", "Spreading data horizontally:"),
     QT_TRANSLATE_NOOP("ConfigureLayoutDialog",
                       "Drag and drop buttons into this area to spread data horizontally."),
     QT_TRANSLATE_NOOP("ConfigureLayoutDialog", "&Spread Horizontally")},
}};

QString translated(const char* text) {
  return QCoreApplication::translate("ConfigureLayoutDialog", text);
}

QLabel* explanation(const QString& text) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  return label;
}

// The key is shown only: the button itself listens to it.
QString withKey(const QString& entry, Qt::Key key) {
  return entry + u'\t' + QKeySequence(Qt::CTRL | key).toString(QKeySequence::NativeText);
}

}  // namespace

ConfigureLayoutDialog::ConfigureLayoutDialog(const ReportView& view, TakeField takeField,
                                             QWidget* parent)
    : QDialog(parent), view_(view), takeField_(std::move(takeField)) {
  setObjectName(QStringLiteral("order dialog"));
  setWindowTitle(tr("Layout"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(
      explanation(tr("Use the buttons below to reorder the tabular data in the report. You will "
                     "see the effects of reordering in the report in the main window")));
  auto* zones = new QGridLayout;
  layout->addLayout(zones, 1);
  layout->addWidget(
      explanation(tr("By keyboard: Ctrl+Up and Ctrl+Down move a field within its area, Ctrl+Left "
                     "and Ctrl+Right move it to the area beside it.")));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  layout->addWidget(buttons);
  ok_ = buttons->button(QDialogButtonBox::Ok);
  ok_->setObjectName(QStringLiteral("okButton"));
  for (std::size_t i = 0; i < areas_.size(); ++i) {
    addZone(*zones, i);
  }
  resize(fontMetrics().averageCharWidth() * kWidth, fontMetrics().height() * kHeight);
  showView();
  goToFirst();
}

void ConfigureLayoutDialog::addZone(QGridLayout& zones, std::size_t number) {
  const ZoneTexts& texts = kZones[number];
  auto* zone = new FieldZone([this](const QMimeData& mime) { return isDragged(mime); });
  zone->setObjectName(QLatin1String(texts.objectName));
  zone->setAccessibleName(translated(texts.title));
  zone->setAccessibleDescription(translated(texts.explanation));
  auto* scroll = new QScrollArea;
  scroll->setWidgetResizable(true);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidget(zone);
  auto* title = new QLabel(translated(texts.title));
  QFont bold = title->font();
  bold.setBold(true);
  title->setFont(bold);
  const auto column = static_cast<int>(number);
  zones.addWidget(title, 0, column);
  zones.addWidget(explanation(translated(texts.explanation)), 1, column);
  zones.addWidget(scroll, 2, column);
  zones.setColumnStretch(column, 1);
  zones.setRowStretch(2, 1);
  areas_[number] = {zone, scroll};
  connectZone(areas_[number], kLayoutAxes[number]);
}

void ConfigureLayoutDialog::connectZone(const Area& area, Axis axis) {
  connect(area.zone, &FieldZone::buttonAdded, this, &ConfigureLayoutDialog::connectButton);
  connect(area.zone, &FieldZone::dropped, this, [this, axis](int index) {
    dropPlace_ = LayoutPlace{axis, static_cast<std::size_t>(index)};
  });
  connect(area.zone, &FieldZone::draggedOver, this, [this, scroll = area.scroll](QPoint point) {
    scroll->ensureVisible(point.x(), point.y(), 0, fontMetrics().height());
  });
}

void ConfigureLayoutDialog::connectButton(FieldButton* button) {
  const int field = button->field();
  connect(button, &FieldButton::dragWanted, this, [this, button] { drag(button); });
  connect(button, &FieldButton::stepWanted, this,
          [this, field](FieldStep way) { step(field, way); });
  connect(button, &FieldButton::neighbourWanted, this,
          [this, field](FieldStep direction) { goToNeighbour(field, direction); });
  connect(button, &FieldButton::menuWanted, this,
          [this, field](QPoint position) { showMenu(field, position); });
}

void ConfigureLayoutDialog::showView() {
  for (std::size_t i = 0; i < areas_.size(); ++i) {
    QList<ShownField> fields;
    for (const int field : view_.axis(kLayoutAxes[i])) {
      fields.append({field, toText(view_.table->field(field).name)});
    }
    areas_[i].zone->setFields(fields);
  }
  orderTabs();
}

void ConfigureLayoutDialog::orderTabs() {
  QWidget* before = nullptr;
  for (const Area& area : areas_) {
    for (FieldButton* button : area.zone->buttons()) {
      if (before != nullptr) {
        setTabOrder(before, button);
      }
      before = button;
    }
  }
  if (before != nullptr) {
    setTabOrder(before, ok_);
  }
}

// Bytes of that type may come from anywhere, and may be the address of a button in another process
// of this program.
bool ConfigureLayoutDialog::isDragged(const QMimeData& mime) const {
  return dragged_ != nullptr && mime.data(QLatin1String(kMimeType)) == dragged_->identity();
}

void ConfigureLayoutDialog::drag(FieldButton* button) {
  const int field = button->field();
  auto* mime = new QMimeData;
  mime->setData(QLatin1String(kMimeType), button->identity());
  // The drag would go with the button.
  const QPointer<QDrag> drag = new QDrag(this);
  drag->setMimeData(mime);
  drag->setPixmap(button->grab());
  drag->setHotSpot(button->mapFromGlobal(QCursor::pos()));
  dragged_ = button;
  dropPlace_.reset();
  const QPointer<ConfigureLayoutDialog> dialog = this;
  runDrag_(*drag);
  if (!dialog) {
    return;
  }
  if (drag) {
    drag->deleteLater();
  }
  dragged_ = nullptr;
  // Only now, because laying the report out may open a box, which no drag must wait for.
  if (const std::optional<LayoutPlace> place = std::exchange(dropPlace_, std::nullopt)) {
    move(field, *place);
  }
}

void ConfigureLayoutDialog::move(int field, LayoutPlace before) {
  takeField_(field, before);
  goTo(buttonOf(field));
}

void ConfigureLayoutDialog::step(int field, FieldStep step) {
  if (const std::optional<LayoutPlace> place = placeOfStep(view_, field, step)) {
    move(field, *place);
  } else {
    QApplication::beep();
  }
}

void ConfigureLayoutDialog::goToNeighbour(int field, FieldStep direction) {
  const std::optional<LayoutPlace> from = placeInLayout(view_, field);
  if (!from) {
    return;
  }
  const bool upwards = direction == FieldStep::Up;
  const bool backwards = direction == FieldStep::Back;
  const auto axis = std::find(kLayoutAxes.begin(), kLayoutAxes.end(), from->axis);
  auto number = static_cast<int>(axis - kLayoutAxes.begin());
  auto index = static_cast<qsizetype>(from->index);
  const auto buttonsOf = [this](int area) {
    return areas_[static_cast<std::size_t>(area)].zone->buttons();
  };
  if (upwards || direction == FieldStep::Down) {
    goTo(buttonsOf(number).value(upwards ? index - 1 : index + 1));
    return;
  }
  // Over areas without fields.
  const int last = static_cast<int>(areas_.size()) - 1;
  do {
    number += backwards ? -1 : 1;
  } while (number >= 0 && number <= last && buttonsOf(number).isEmpty());
  if (number >= 0 && number <= last) {
    index = std::min(index, buttonsOf(number).size() - 1);
    goTo(buttonsOf(number).at(index));
  }
}

void ConfigureLayoutDialog::showMenu(int field, QPoint globalPosition) {
  auto* menu = new QMenu(this);
  menu->setObjectName(QStringLiteral("fieldMenu"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto addStep = [&](const QString& text, FieldStep way) {
    QAction* action = menu->addAction(text, this, [this, field, way] { step(field, way); });
    action->setEnabled(placeOfStep(view_, field, way).has_value());
  };
  addStep(withKey(tr("Move &Up"), Qt::Key_Up), FieldStep::Up);
  addStep(withKey(tr("Move &Down"), Qt::Key_Down), FieldStep::Down);
  menu->addSeparator();
  const std::optional<LayoutPlace> from = placeInLayout(view_, field);
  for (std::size_t i = 0; i < areas_.size(); ++i) {
    const Axis axis = kLayoutAxes[i];
    QAction* action = menu->addAction(translated(kZones[i].menuEntry), this, [this, field, axis] {
      move(field, {axis, view_.axis(axis).size()});
    });
    action->setEnabled(from && from->axis != axis);
  }
  menu->popup(globalPosition);
}

void ConfigureLayoutDialog::goToFirst() {
  for (const Area& area : areas_) {
    if (!area.zone->buttons().isEmpty()) {
      goTo(area.zone->buttons().first());
      return;
    }
  }
}

FieldButton* ConfigureLayoutDialog::buttonOf(int field) const {
  for (const Area& area : areas_) {
    for (FieldButton* button : area.zone->buttons()) {
      if (button->field() == field) {
        return button;
      }
    }
  }
  return nullptr;
}

void ConfigureLayoutDialog::goTo(FieldButton* button) {
  if (button == nullptr) {
    return;
  }
  button->setFocus(Qt::OtherFocusReason);
  for (const Area& area : areas_) {
    if (area.zone->isAncestorOf(button)) {
      // The layout has to know a new button first.
      area.zone->layout()->activate();
      area.zone->resize(area.zone->size().expandedTo(area.zone->minimumSizeHint()));
      area.scroll->ensureWidgetVisible(button);
    }
  }
}

}  // namespace vrel
