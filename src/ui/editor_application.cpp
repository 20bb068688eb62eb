#include "ui/editor_application.h"

#include <QIcon>
#include <QPainter>
#include <clocale>

#include "base/platform.h"

namespace vrel {

namespace {

ToolkitMessage kindOf(QtMsgType type) {
  switch (type) {
    case QtDebugMsg:
    case QtInfoMsg:
      return ToolkitMessage::Debug;
    case QtWarningMsg:
      return ToolkitMessage::Warning;
    case QtCriticalMsg:
      return ToolkitMessage::Critical;
    case QtFatalMsg:
      break;
  }
  return ToolkitMessage::Fatal;
}

void handleToolkitMessage(QtMsgType type, const QMessageLogContext&, const QString& text) {
  // Before the application object is complete a filter of its own comes to the same decision.
  ToolkitMessageFilter early;
  auto* application = dynamic_cast<EditorApplication*>(QCoreApplication::instance());
  toolkitMessage(application != nullptr ? application->toolkitMessages() : early, kindOf(type),
                 text.toStdString());
}

#ifdef Q_OS_WIN
constexpr bool kHasDisplayServer = false;
#else
constexpr bool kHasDisplayServer = true;
#endif

// Tries to connect to an X display, the way the toolkit's plugin will.
bool canConnectToX(const std::string& display) {
  constexpr const char* kLibrary = "libxcb.so.1";
  std::string error;
  using Connect = void*(const char*, int*);
  using HasError = int(void*);
  using Disconnect = void(void*);
  auto* connect =
      reinterpret_cast<Connect*>(platform::loadFunction(kLibrary, "xcb_connect", error));
  auto* hasError = reinterpret_cast<HasError*>(
      platform::loadFunction(kLibrary, "xcb_connection_has_error", error));
  auto* disconnect =
      reinterpret_cast<Disconnect*>(platform::loadFunction(kLibrary, "xcb_disconnect", error));
  if (connect == nullptr || hasError == nullptr || disconnect == nullptr) {
    return false;
  }
  void* connection = connect(display.c_str(), nullptr);
  const bool connected = hasError(connection) == 0;
  disconnect(connection);
  return connected;
}

QPixmap iconOfSize(int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  const int cells = 4;
  const int cell = (size - 2) / cells;
  const int edge = cell * cells;
  const int start = (size - edge) / 2;
  painter.fillRect(start, start, edge, edge, QColor(0xff, 0xff, 0xff));
  painter.fillRect(start, start, edge, cell, QColor(0x1f, 0x5f, 0xa8));
  painter.fillRect(start, start + cell, cell, edge - cell, QColor(0xb9, 0xd3, 0xee));
  painter.setPen(QColor(0x27, 0x3f, 0x5a));
  for (int line = 0; line <= cells; ++line) {
    painter.drawLine(start + line * cell, start, start + line * cell, start + edge);
    painter.drawLine(start, start + line * cell, start + edge, start + line * cell);
  }
  return pixmap;
}

}  // namespace

ArgumentWords::ArgumentWords(std::vector<std::string> given)
    : words(std::move(given)), count(static_cast<int>(words.size())) {
  for (std::string& word : words) {
    pointers.push_back(word.data());
  }
  pointers.push_back(nullptr);
}

EditorApplication::EditorApplication(std::vector<std::string> argumentWords,
                                     ToolkitMessageFilter& filter)
    : ArgumentWords(std::move(argumentWords)),
      QApplication(count, pointers.data()),
      filter_(filter) {
  // The toolkit has put the user's locale in force, which would change how numbers and dates are
  // read and written.
  std::setlocale(LC_NUMERIC, "C");
  std::setlocale(LC_TIME, "C");
}

FilteredToolkitMessages::FilteredToolkitMessages()
    : before_(qInstallMessageHandler(handleToolkitMessage)) {}

FilteredToolkitMessages::~FilteredToolkitMessages() {
  qInstallMessageHandler(before_);
}

bool canOpenDisplay(const EnvironmentLookup& environment) {
  const std::string plugin = environment("QT_QPA_PLATFORM");
  if (!kHasDisplayServer || (!plugin.empty() && !plugin.starts_with("xcb"))) {
    return true;
  }
  if (plugin.empty() && !environment("WAYLAND_DISPLAY").empty()) {
    return true;
  }
  const std::string display = environment("DISPLAY");
  return !display.empty() && canConnectToX(display);
}

QFont defaultFont() {
  return QFont(QStringLiteral("Arial Unicode MS"), 8);
}

QIcon applicationIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128}) {
    icon.addPixmap(iconOfSize(size));
  }
  return icon;
}

}  // namespace vrel
