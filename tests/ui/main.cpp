// Runs the widget tests on the offscreen platform. A toolkit warning that a test did not ask for
// fails the test.
#include <gtest/gtest.h>

#include <QApplication>
#include <QStringList>

namespace {

QStringList& toolkitWarnings() {
  static QStringList warnings;
  return warnings;
}

void noteWarning(QtMsgType type, const QMessageLogContext&, const QString& text) {
  // The offscreen platform tells what it lacks whenever a window is shown.
  const bool ofPlatform = text.startsWith(QLatin1String("This plugin does not support "));
  if (type != QtDebugMsg && type != QtInfoMsg && !ofPlatform) {
    toolkitWarnings().append(text);
  }
}

class NoToolkitWarnings : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override { toolkitWarnings().clear(); }
  void OnTestEnd(const testing::TestInfo&) override {
    for (const QString& warning : toolkitWarnings()) {
      ADD_FAILURE() << "toolkit warning: " << warning.toStdString();
    }
  }
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  const QApplication application(argc, argv);
  qInstallMessageHandler(noteWarning);
  // In front of the printer, so that the printer tells of the failures.
  auto& listeners = testing::UnitTest::GetInstance()->listeners();
  auto* printer = listeners.Release(listeners.default_result_printer());
  listeners.Append(new NoToolkitWarnings);
  listeners.Append(printer);
  return RUN_ALL_TESTS();
}
