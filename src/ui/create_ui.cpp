#include "ui/create_ui.h"

#include <QScreen>
#include <QSocketNotifier>

#include "ui/editor_application.h"
#include "ui/user_settings.h"
#include "ui/view_files.h"
#include "ui/window_notice.h"

namespace vrel {

namespace {

class BusyCursor {
 public:
  BusyCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;
  ~BusyCursor() { QApplication::restoreOverrideCursor(); }
};

QString windowTitle(const EditorContext& context) {
  return context.title
             ? VrelMainWindow::tr("Output of: %1").arg(QString::fromStdString(*context.title))
             : VrelMainWindow::tr("Data Editor");
}

WindowSeams processSeams() {
  WindowSeams seams;
  seams.endProcess = [] { QCoreApplication::exit(0); };
  seams.chooseOpenFile = askForOpenFile;
  seams.chooseSaveFile = askForSaveFile;
  seams.runDialog = [](QDialog& dialog) { dialog.exec(); };
  return seams;
}

// Returns what there is to say about it.
HeldNotice takeUserView(EditorContext& context) {
  HeldNotice held;
  const NoticeInForce inForce(context.notice, held);
  chooseUserView(context.view, viewSearch(context), viewReading(context));
  return held;
}

// What the window shrinks to when the user takes it out of the maximised state.
void setNormalSize(QWidget& window) {
  const QRect room = window.screen()->availableGeometry();
  window.resize(room.size() * 4 / 5);
}

void watchTermination(EditorContext& context, QObject& owner) {
  if (context.terminationDescriptor < 0) {
    return;
  }
  auto* notifier =
      new QSocketNotifier(context.terminationDescriptor, QSocketNotifier::Read, &owner);
  QObject::connect(notifier, &QSocketNotifier::activated, &owner, [&context, notifier] {
    notifier->setEnabled(false);
    context.terminate();
  });
}

}  // namespace

std::unique_ptr<VrelMainWindow> CreateUI(EditorContext& context, WindowSeams seams) {
  const BusyCursor busy;
  auto window = std::make_unique<VrelMainWindow>(context, std::move(seams));
  window->setWindowTitle(VrelMainWindow::tr("Data Editor: Working..."));
  window->setWindowIcon(applicationIcon());
  const HeldNotice held = takeUserView(context);
  window->layOutReport();
  setNormalSize(*window);
  window->showMaximized();
  window->setWindowTitle(windowTitle(context));
  // Once the window stands there, so that no box comes alone.
  const auto tell = [&context, held, shown = window.get()] {
    held.showIn(*context.notice);
    shown->warnOfMissingKeys();
  };
  QMetaObject::invokeMethod(window.get(), tell, Qt::QueuedConnection);
  return window;
}

EditorResult runEditor(EditorContext& context) {
  toolkitMessage(context.toolkitMessages, ToolkitMessage::Debug, "CreateUI()");
  const FilteredToolkitMessages filtered;
  const auto application =
      makeApplication(context.environment, context.arguments, context.toolkitMessages);
  if (!application) {
    return EditorResult::NoDisplay;
  }
  readUserSettings(context);
  QApplication::setFont(applicationFont(context.settings));
  installLanguage(*application, context.environment, QLocale::system().name());
  QObject::connect(application.get(), &QGuiApplication::lastWindowClosed, application.get(),
                   &QCoreApplication::quit);
  const auto window = CreateUI(context, processSeams());
  WindowNotice notice(window.get());
  const NoticeInForce inForce(context.notice, notice);
  watchTermination(context, *application);
  qDebug("Entering app event loop");
  QApplication::exec();
  return EditorResult::Closed;
}

}  // namespace vrel
