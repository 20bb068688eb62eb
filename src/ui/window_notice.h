// Notices as message boxes.
#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QProgressDialog>
#include <functional>
#include <string>
#include <vector>

#include "base/notice.h"

namespace vrel {

/// Shows a box, waits for the user, and returns the button.
using RunBox = std::function<QMessageBox::StandardButton(QMessageBox& box)>;

/// Runs the box as a modal dialog.
QMessageBox::StandardButton runModally(QMessageBox& box);

class WindowNotice : public Notice {
 public:
  /// `runBox` lets a test answer in the user's place.
  explicit WindowNotice(QWidget* window, RunBox runBox = runModally);
  ~WindowNotice() override;

  void critical(std::string_view title, std::string_view text) override;
  void warning(std::string_view title, std::string_view text) override;
  Answer question(std::string_view title, std::string_view text) override;
  bool confirm(std::string_view title, std::string_view text) override;
  void beep() override;
  bool progress(std::string_view task, std::uint64_t done, std::uint64_t total) override;
  std::string translate(std::string_view text) override;
  bool hasWindow() const override { return true; }

 private:
  QMessageBox::StandardButton show(QMessageBox::Icon icon, std::string_view title,
                                   std::string_view text, QMessageBox::StandardButtons buttons);

  QWidget* window_;
  RunBox runBox_;
  QPointer<QProgressDialog> progress_;
};

/// Keeps what there is to say while the window is being made, so that no box comes before it.
class HeldNotice : public Notice {
 public:
  /// Says it all, in order.
  void showIn(Notice& notice) const;

  void critical(std::string_view title, std::string_view text) override;
  void warning(std::string_view title, std::string_view text) override;
  Answer question(std::string_view, std::string_view) override { return Answer::Cancel; }
  bool confirm(std::string_view, std::string_view) override { return false; }
  void beep() override {}
  bool progress(std::string_view, std::uint64_t, std::uint64_t) override { return true; }
  std::string translate(std::string_view text) override;
  bool hasWindow() const override { return true; }

 private:
  struct Held {
    void (Notice::*kind)(std::string_view title, std::string_view text);
    std::string title;
    std::string text;
  };

  std::vector<Held> held_;
};

/// Puts a notice in force while the object lives.
class NoticeInForce {
 public:
  NoticeInForce(Notice*& current, Notice& notice) : current_(current), before_(current) {
    current_ = &notice;
  }
  NoticeInForce(const NoticeInForce&) = delete;
  NoticeInForce& operator=(const NoticeInForce&) = delete;
  ~NoticeInForce() { current_ = before_; }

 private:
  Notice*& current_;
  Notice* before_;
};

}  // namespace vrel
