// Whether the texts of a window can be read and reached by keyboard.
#pragma once

#include <QStringList>
#include <QWidget>

namespace vrel::test {

/// The texts of visible labels, buttons, group boxes, choice lists and headings that get less room
/// than they need, each with its widget's object name.
QStringList clippedTexts(const QWidget& window);

/// Mnemonics that several usable controls of a window share: "n: &Name, &New".
QStringList sharedMnemonics(const QWidget& window);

/// The same among texts, such as those of a menu's entries.
QStringList sharedMnemonics(const QStringList& texts);

}  // namespace vrel::test
