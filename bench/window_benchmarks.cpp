// How long the report takes to open, to paint and to scroll, at 100,000 rows and 500 columns in a
// window of 1920 by 1080 pixels. Needs no display.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QScrollBar>
#include <memory>

#include "model/report_grid.h"
#include "model/report_layout.h"
#include "ui/frozen_column_tables.h"

namespace {

using namespace vrel;

constexpr int kRows = 100'000;
constexpr int kColumns = 500;
// Every row has values in this many columns that stand side by side; so do the rows beside it.
constexpr int kFilled = 60;

void addField(Table& table, const char* name, FieldType type, Classification classification) {
  FieldDef& field = table.fields.emplace_back();
  field.name = name;
  field.type = type;
  field.classification = classification;
}

void addTuple(Table& table, int row, int column) {
  Cell* cells = appendTuple(table);
  cells[0] = Cell{.text = table.fields[0].texts.intern("Item " + std::to_string(1'000'000 + row))};
  cells[1] = Cell{.text = table.fields[1].texts.intern("Week " + std::to_string(1'000 + column))};
  cells[2] = numberCell(1000.0 * row + column);
}

// Filled cells stand in one block at the left and are spread out at the right.
Table largeTable() {
  Table table;
  addField(table, "Item", FieldType::String, Classification::Key);
  addField(table, "Week", FieldType::String, Classification::Key);
  addField(table, "Plan", FieldType::Number, Classification::DataReadWrite);
  for (int row = 0; row < kRows; ++row) {
    for (int column = 0; column < kFilled; ++column) {
      addTuple(table, row, column);
    }
    addTuple(table, row, kFilled + row % (kColumns - kFilled));
  }
  table.highlights.resize(3);
  for (std::size_t tuple = 0; tuple < table.tupleCount; ++tuple) {
    table.highlights[2].byTuple.push_back(static_cast<std::uint8_t>(tuple % 3));
  }
  return table;
}

struct Shown {
  Shown() : table(largeTable()), model(format) {
    view.table = &table;
    view.axis(Axis::X) = {0};
    view.axis(Axis::Y) = {1};
    view.axis(Axis::Data) = {2};
    view.breaks.resize(table.fieldCount());
    view.dataInColumns = true;
    show();
  }

  void show() {
    model.setGrid(layOut(view));
    open();
  }

  void open() {
    tables = std::make_unique<FrozenColumnTablesImpl>(model);
    tables->resize(1920, 1080);
    tables->show();
    QCoreApplication::processEvents();
  }

  Table table;
  ReportView view;
  FormatSettings format;
  ReportTableModel model;
  std::unique_ptr<FrozenColumnTablesImpl> tables;
};

// Made once: reading so large a table takes longer than all measurements.
Shown& report() {
  static Shown* shown = new Shown;
  return *shown;
}

QPixmap& canvas() {
  static QPixmap* pixels = new QPixmap(1920, 1080);
  return *pixels;
}

void openLaidOut(benchmark::State& state) {
  Shown& shown = report();
  for (auto _ : state) {
    shown.tables.reset();
    shown.open();
  }
}

void repaint(benchmark::State& state) {
  Shown& shown = report();
  for (auto _ : state) {
    shown.tables->render(&canvas());
  }
}

void scrollByPage(benchmark::State& state) {
  Shown& shown = report();
  QScrollBar* bar = shown.tables->regularTable()->verticalScrollBar();
  for (auto _ : state) {
    bar->setValue((bar->value() + bar->pageStep()) % bar->maximum());
    QCoreApplication::processEvents();
  }
}

void scrollSideways(benchmark::State& state) {
  Shown& shown = report();
  QScrollBar* bar = shown.tables->regularTable()->horizontalScrollBar();
  for (auto _ : state) {
    bar->setValue((bar->value() + 200) % bar->maximum());
    QCoreApplication::processEvents();
  }
  bar->setValue(0);
}

// What painting follows an edit: both tables, as a whole.
void showChangedValues(benchmark::State& state) {
  Shown& shown = report();
  for (auto _ : state) {
    shown.model.valuesChanged();
    QCoreApplication::processEvents();
  }
}

void moveByKey(benchmark::State& state) {
  Shown& shown = report();
  std::size_t row = 0;
  for (auto _ : state) {
    shown.tables->setCurrentPlace({row, 1});
    row = (row + 1) % kRows;
    QCoreApplication::processEvents();
  }
}

void zoom(benchmark::State& state) {
  Shown& shown = report();
  for (auto _ : state) {
    shown.tables->setZoom(shown.tables->zoom() == 100 ? 110 : 100);
    QCoreApplication::processEvents();
  }
  shown.tables->setZoom(100);
}

BENCHMARK(repaint)->Unit(benchmark::kMillisecond);
BENCHMARK(showChangedValues)->Unit(benchmark::kMillisecond);
BENCHMARK(scrollByPage)->Unit(benchmark::kMillisecond);
BENCHMARK(scrollSideways)->Unit(benchmark::kMillisecond);
BENCHMARK(moveByKey)->Unit(benchmark::kMillisecond);
BENCHMARK(zoom)->Unit(benchmark::kMillisecond);
BENCHMARK(openLaidOut)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("windows"));
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
