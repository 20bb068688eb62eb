// Whether every text that the user sees has gone through the translator, which marks it here.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

#include "expr/ui/to_text.h"
#include "model/paper.h"
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

// What comes from the report, and the names of paper formats, reads the same in every language.
bool isData(const QString& text, const ReportView& view) {
  QStringList data = {toText(systemTitle(view))};
  for (const FieldDef& field : view.table->fields) {
    data << toText(field.name);
  }
  for (const Paper& paper : paperTypes()) {
    data << toText(paper.name);
  }
  return data.contains(text);
}

// The texts with words in them that bear no mark.
QStringList unmarked(const QWidget& window, const ReportView& view) {
  static const QRegularExpression word(QStringLiteral("[A-Za-z]{2}"));
  QStringList found;
  for (const QWidget* widget :
       QList<const QWidget*>{&window} + window.findChildren<const QWidget*>()) {
    for (const QString& text : textsOf(*widget)) {
      if (text.contains(word) && !text.contains(u'[') && !isData(text, view)) {
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
  dialogs.look = [&](QDialog& dialog) {
    for (const QString& text : unmarked(dialog, dialogs.desk.view)) {
      found << dialog.objectName() + u'/' + text;
    }
  };
  dialogs.openWindow();
  dialogs.openAll();
  QTest::keyClick(dialogs.window->tables().regularTable(), Qt::Key_F, Qt::ControlModifier);
  auto* findText = dialogs.window->findChild<QLineEdit*>(QStringLiteral("findText"));
  ASSERT_NE(findText, nullptr);
  QTest::keyClicks(findText, QStringLiteral("nowhere"));
  QTest::keyClick(findText, Qt::Key_Return);
  found << unmarked(*dialogs.window, dialogs.desk.view);
  QCoreApplication::removeTranslator(&marking);
  EXPECT_EQ(found.join(u'\n').toStdString(), "");
  EXPECT_EQ(dialogs.seen.size(), 12);
}

}  // namespace
}  // namespace vrel
