#include "ui/user_settings.h"

#include <QFont>
#include <QLibraryInfo>
#include <QTranslator>

#include "base/languages.h"
#include "base/platform.h"
#include "expr/ui/to_text.h"

namespace vrel {

namespace {

QFont defaultFont() {
  return QFont(QStringLiteral("Arial Unicode MS"), 8);
}

void installTranslation(QCoreApplication& application, const QString& file,
                        const QString& folder = {}) {
  auto* translator = new QTranslator(&application);
  if (translator->load(file, folder)) {
    QCoreApplication::installTranslator(translator);
  } else {
    delete translator;
  }
}

}  // namespace

ToolkitWarning settingsWarning(const EditorContext& context) {
  return [&filter = context.toolkitMessages](std::string_view text) {
    toolkitMessage(filter, ToolkitMessage::Warning, text);
  };
}

void readUserSettings(EditorContext& context) {
  const bool read = readSettings(context.settings, context.environment, settingsWarning(context));
  // What stands in a file that is there, but cannot be read, had better stay.
  if (!read && !platform::fileExists(settingsFile(context.environment))) {
    saveSettings(context.settings, context.environment, *context.notice);
  }
}

QFont applicationFont(const Settings& settings) {
  QFont font;
  return settings.applicationFont && font.fromString(toText(*settings.applicationFont))
             ? font
             : defaultFont();
}

void installLanguage(QCoreApplication& application, const EnvironmentLookup& environment,
                     const QString& locale) {
  const std::optional<Language> language = chosenLanguage(environment, locale.toStdString());
  if (!language) {
    return;
  }
  saveLanguage(*language, environment);
  const std::string file = translationFile(*language, environment);
  if (!file.empty()) {
    // The toolkit's own texts first: those of the program go before them.
    installTranslation(application, QStringLiteral("qtbase_") + toText(language->code),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    installTranslation(application, toText(file));
  }
}

}  // namespace vrel
