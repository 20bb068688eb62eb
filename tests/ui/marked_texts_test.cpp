// Whether every text that the user sees has gone through the translator, which marks it here.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QStatusBar>
#include <QTranslator>

#include "ui/every_dialog.h"
#include "ui/window_notice.h"

namespace vrel {
namespace {

class Marking : public QTranslator {
 public:
  QString translate(const char*, const char* text, const char*, int) const override {
    return u'[' + QString::fromUtf8(text) + u']';
  }
  bool isEmpty() const override { return false; }
};

QStringList textsOf(const QWidget& widget) {
  QStringList texts = {widget.windowTitle(), widget.toolTip(), widget.statusTip(),
                       widget.accessibleName(), widget.accessibleDescription()};
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    texts << label->text();
  } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    texts << button->text();
  } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
    texts << group->title();
  } else if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
    texts << edit->placeholderText();
  } else if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
    for (int i = 0; i < box->count(); ++i) {
      texts << box->itemText(i);
    }
  } else if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) {
    for (int i = 0; header->model() != nullptr && i < header->count(); ++i) {
      texts << header->model()->headerData(i, header->orientation()).toString();
    }
  }
  for (const QAction* action : widget.actions()) {
    texts << action->text() << action->toolTip();
  }
  return texts;
}

// The texts with words in them that bear no mark.
QStringList unmarked(const QWidget& window) {
  static const QRegularExpression word(QStringLiteral("[A-Za-z]{2}"));
  QStringList found;
  for (const QWidget* widget :
       QList<const QWidget*>{&window} + window.findChildren<const QWidget*>()) {
    for (const QString& text : textsOf(*widget)) {
      if (text.contains(word) && !text.contains(u'[')) {
        found << widget->objectName() + QLatin1String(": ") + text;
      }
    }
  }
  return found;
}

TEST(MarkedTexts, AreAllTexts) {
  Marking marking;
  QCoreApplication::installTranslator(&marking);
  test::EveryDialog dialogs;
  WindowNotice notice(nullptr, [](QMessageBox&) { return QMessageBox::Cancel; });
  dialogs.desk.noticeInForce = &notice;
  QStringList found;
  dialogs.look = [&found](QDialog& dialog) {
    for (const QString& text : unmarked(dialog)) {
      found << dialog.objectName() + u'/' + text;
    }
  };
  dialogs.openWindow();
  dialogs.openAll();
  found << unmarked(*dialogs.window);
  QCoreApplication::removeTranslator(&marking);
  EXPECT_EQ(found.join(u'\n').toStdString(), "");
  EXPECT_EQ(dialogs.seen.size(), 12);
}

}  // namespace
}  // namespace vrel
