#include "ui/editor_application.h"

#include <fmt/format.h>

#include <QIcon>
#include <QPainter>
#include <clocale>

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

constexpr std::string_view kOffscreen = "offscreen";
#ifdef Q_OS_WIN
constexpr const char* kDisplayPlugin = "windows";
constexpr const char* kWaylandPlugins = kDisplayPlugin;
#else
constexpr const char* kDisplayPlugin = "xcb";
constexpr const char* kWaylandPlugins = "wayland;xcb";
#endif

// Names the plugins to the toolkit while the object lives; the processes that commands start do not
// see it.
class NamedPlugins {
 public:
  explicit NamedPlugins(const std::string& plugins) : before_(qgetenv(kVariable)) {
    qputenv(kVariable, QByteArray::fromStdString(plugins));
  }
  NamedPlugins(const NamedPlugins&) = delete;
  NamedPlugins& operator=(const NamedPlugins&) = delete;
  ~NamedPlugins() {
    if (before_.isNull()) {
      qunsetenv(kVariable);
    } else {
      qputenv(kVariable, before_);
    }
  }

 private:
  static constexpr const char* kVariable = "QT_QPA_PLATFORM";

  QByteArray before_;
};

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

// Whether the platform without windows is the user's own choice.
bool choseOffscreen(const EnvironmentLookup& environment) {
  return environment("QT_QPA_PLATFORM").find(kOffscreen) != std::string::npos;
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

std::string platformPlugins(const EnvironmentLookup& environment) {
  std::string plugins = environment("QT_QPA_PLATFORM");
  if (choseOffscreen(environment)) {
    return plugins;
  }
  if (plugins.empty()) {
    plugins = environment("WAYLAND_DISPLAY").empty() ? kDisplayPlugin : kWaylandPlugins;
  }
  return fmt::format("{};{}", plugins, kOffscreen);
}

std::unique_ptr<EditorApplication> makeApplication(const EnvironmentLookup& environment,
                                                   std::vector<std::string> words,
                                                   ToolkitMessageFilter& filter) {
  const bool chosen = choseOffscreen(environment);
  const NamedPlugins plugins(platformPlugins(environment));
  auto application = std::make_unique<EditorApplication>(std::move(words), filter);
  const bool isOffscreen = QGuiApplication::platformName().toStdString() == kOffscreen;
  return isOffscreen && !chosen ? nullptr : std::move(application);
}

FilteredToolkitMessages::FilteredToolkitMessages()
    : before_(qInstallMessageHandler(handleToolkitMessage)) {}

FilteredToolkitMessages::~FilteredToolkitMessages() {
  qInstallMessageHandler(before_);
}

QIcon applicationIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128}) {
    icon.addPixmap(iconOfSize(size));
  }
  return icon;
}

}  // namespace vrel
