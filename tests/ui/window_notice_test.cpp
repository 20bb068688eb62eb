#include "ui/window_notice.h"

#include <gtest/gtest.h>

#include <QTest>

namespace vrel {
namespace {

// What a box said when it was shown, and the button that is pressed on it.
struct Person {
  QMessageBox::StandardButton press = QMessageBox::Ok;
  QString title;
  QString text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  QMessageBox::StandardButtons buttons;
  QString defaultButton;

  RunBox reader() {
    return [this](QMessageBox& box) {
      title = box.windowTitle();
      text = box.text();
      icon = box.icon();
      buttons = box.standardButtons();
      defaultButton = box.defaultButton() != nullptr ? box.defaultButton()->text() : QString();
      return press;
    };
  }
};

TEST(WindowNotice, AWarningIsABoxWithAnOkButton) {
  Person person;
  WindowNotice(nullptr, person.reader()).warning("QNT Error", "Row range is <b>outside</b>.");
  EXPECT_EQ(person.title, "QNT Error");
  EXPECT_EQ(person.text, "Row range is <b>outside</b>.");
  EXPECT_EQ(person.icon, QMessageBox::Warning);
  EXPECT_EQ(person.buttons, QMessageBox::Ok);
}

TEST(WindowNotice, ACriticalNoticeIsACriticalBox) {
  Person person;
  WindowNotice(nullptr, person.reader()).critical("Data Editor", "No.");
  EXPECT_EQ(person.icon, QMessageBox::Critical);
  EXPECT_EQ(person.buttons, QMessageBox::Ok);
}

TEST(WindowNotice, AQuestionOffersYesNoAndCancelWithYesAsDefault) {
  Person person;
  WindowNotice notice(nullptr, person.reader());
  person.press = QMessageBox::Yes;
  EXPECT_EQ(notice.question("Data Editor", "Save?"), Answer::Yes);
  EXPECT_EQ(person.icon, QMessageBox::Warning);
  EXPECT_EQ(person.buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  EXPECT_EQ(person.defaultButton, "&Yes");
  person.press = QMessageBox::No;
  EXPECT_EQ(notice.question("Data Editor", "Save?"), Answer::No);
  person.press = QMessageBox::Cancel;
  EXPECT_EQ(notice.question("Data Editor", "Save?"), Answer::Cancel);
}

// Presses a key on the box as soon as it is shown.
Answer answerWithKey(Qt::Key key) {
  WindowNotice notice(nullptr, [key](QMessageBox& box) {
    QTimer::singleShot(0, &box, [&box, key] { QTest::keyClick(&box, key); });
    return runModally(box);
  });
  return notice.question("Data Editor", "Save?");
}

TEST(WindowNotice, EnterAnswersYesAndEscapeCancels) {
  EXPECT_EQ(answerWithKey(Qt::Key_Return), Answer::Yes);
  EXPECT_EQ(answerWithKey(Qt::Key_Escape), Answer::Cancel);
}

TEST(WindowNotice, AConfirmationOffersOkAndCancel) {
  Person person;
  WindowNotice notice(nullptr, person.reader());
  EXPECT_TRUE(notice.confirm("Data Editor: Delete View", "Delete view \"<b>\"?"));
  EXPECT_EQ(person.title, "Data Editor: Delete View");
  EXPECT_EQ(person.text, "Delete view \"<b>\"?");
  EXPECT_EQ(person.icon, QMessageBox::Warning);
  EXPECT_EQ(person.buttons, QMessageBox::Ok | QMessageBox::Cancel);
  person.press = QMessageBox::Cancel;
  EXPECT_FALSE(notice.confirm("Data Editor: Delete View", "Delete?"));
}

// Presses a key on the box as soon as it is shown.
bool confirmWithKey(Qt::Key key) {
  WindowNotice notice(nullptr, [key](QMessageBox& box) {
    QTimer::singleShot(0, &box, [&box, key] { QTest::keyClick(&box, key); });
    return runModally(box);
  });
  return notice.confirm("Data Editor", "Delete?");
}

TEST(WindowNotice, EnterConfirmsAndEscapeDoesNot) {
  EXPECT_TRUE(confirmWithKey(Qt::Key_Return));
  EXPECT_FALSE(confirmWithKey(Qt::Key_Escape));
}

TEST(WindowNotice, ALongTaskGoesOnUntilItIsCancelled) {
  QWidget window;
  WindowNotice notice(&window);
  EXPECT_TRUE(notice.progress("Reading", 10, 5'000'000'000));
  auto* dialog = window.findChild<QProgressDialog*>("progressDialog");
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->windowTitle(), "Data Editor");
  EXPECT_EQ(dialog->labelText(), "Reading");
  EXPECT_TRUE(notice.progress("Reading", 2'500'000'000, 5'000'000'000));
  EXPECT_EQ(dialog->value(), 500);
  dialog->cancel();
  EXPECT_FALSE(notice.progress("Reading", 3'000'000'000, 5'000'000'000));
}

TEST(WindowNotice, ALongTaskKeepsTheUserFromDialogsThatStandOpen) {
  QWidget window;
  WindowNotice notice(&window);
  notice.progress("Reading", 1, 10);
  EXPECT_EQ(window.findChild<QProgressDialog*>("progressDialog")->windowModality(),
            Qt::ApplicationModal);
}

TEST(WindowNotice, AFinishedTaskLeavesNoDialog) {
  QWidget window;
  WindowNotice notice(&window);
  notice.progress("Reading", 1, 10);
  EXPECT_TRUE(notice.progress("Reading", 10, 10));
  EXPECT_EQ(window.findChild<QProgressDialog*>(), nullptr);
}

TEST(NoticeInForce, PutsTheFormerNoticeBackAtItsEnd) {
  WindowNotice console(nullptr);
  WindowNotice window(nullptr);
  Notice* current = &console;
  {
    const NoticeInForce inForce(current, window);
    EXPECT_EQ(current, &window);
  }
  EXPECT_EQ(current, &console);
}

}  // namespace
}  // namespace vrel
