// The translation files: whether what they say can take the place of the texts.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace vrel {
namespace {

struct Message {
  QString context;
  QString source;
  QString translation;
  bool unfinished = false;
};

QList<Message> messagesIn(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  QXmlStreamReader xml(&file);
  QList<Message> messages;
  QString context;
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) {
      continue;
    }
    if (xml.name() == QLatin1String("name")) {
      context = xml.readElementText();
    } else if (xml.name() == QLatin1String("source")) {
      messages.append({context, xml.readElementText(), {}, false});
    } else if (xml.name() == QLatin1String("translation")) {
      messages.last().unfinished = xml.attributes().hasAttribute(QLatin1String("type"));
      messages.last().translation = xml.readElementText();
    }
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return messages;
}

// Everything in a text that a pattern matches, in the order of the letters.
QStringList partsOf(const QString& text, const QString& pattern) {
  QStringList parts;
  auto matches = QRegularExpression(pattern).globalMatch(text);
  while (matches.hasNext()) {
    parts << matches.next().captured();
  }
  parts.sort();
  return parts;
}

// The places for values, of either kind.
QStringList valuesOf(const QString& text) {
  return partsOf(text, QStringLiteral("%[0-9]+|%[sdn]"));
}

// The file patterns that a dialog's filter looks for.
QStringList patternsOf(const QString& text) {
  return partsOf(text, QStringLiteral("\\*\\.[a-z]+|;;"));
}

QStringList mnemonicsOf(const QString& text) {
  return partsOf(text, QStringLiteral("&[^& ]"));
}

class Translations : public testing::TestWithParam<const char*> {
 protected:
  QList<Message> messages = messagesIn(
      QStringLiteral(VREL_TRANSLATION_SOURCES "/qnt_%1.ts").arg(QLatin1String(GetParam())));

  // Fails for each message for which the check returns false.
  template <typename Check>
  void expectEach(Check check) {
    EXPECT_GT(messages.size(), 100);
    for (const Message& message : messages) {
      EXPECT_TRUE(check(message)) << message.context.toStdString() << ": \""
                                  << message.source.toStdString() << "\" is \""
                                  << message.translation.toStdString() << '"';
    }
  }
};

INSTANTIATE_TEST_SUITE_P(All, Translations,
                         testing::Values("zh_CN", "zh_TW", "de", "fr", "ja", "es"),
                         [](const auto& parameter) { return std::string(parameter.param); });

TEST_P(Translations, AreWhole) {
  expectEach([](const Message& message) {
    return !message.unfinished && !message.translation.trimmed().isEmpty();
  });
}

TEST_P(Translations, KeepThePlacesForValues) {
  expectEach([](const Message& message) {
    return valuesOf(message.translation) == valuesOf(message.source);
  });
}

TEST_P(Translations, KeepTheFilePatternsOfFilters) {
  expectEach([](const Message& message) {
    return patternsOf(message.translation) == patternsOf(message.source);
  });
}

TEST_P(Translations, HaveAMnemonicWhereTheTextHasOne) {
  expectEach([](const Message& message) {
    return mnemonicsOf(message.translation).size() == mnemonicsOf(message.source).size();
  });
}

TEST_P(Translations, SayThatADialogFollows) {
  expectEach([](const Message& message) {
    const auto dialogFollows = [](const QString& text) { return text.endsWith(u"..."); };
    return dialogFollows(message.translation) == dialogFollows(message.source);
  });
}

TEST_P(Translations, KeepLineFeeds) {
  expectEach([](const Message& message) {
    return message.translation.count(u'\n') == message.source.count(u'\n');
  });
}

}  // namespace
}  // namespace vrel
