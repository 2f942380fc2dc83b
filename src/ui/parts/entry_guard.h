// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>

class QLineEdit;
class QWidget;

namespace tarnwick {

// Undo and redo. They leave no box: what was typed there is the first that they take back.

inline constexpr QKeyCombination undoKey = Qt::CTRL | Qt::Key_Z;
inline constexpr QKeyCombination redoKeys[] = {Qt::CTRL | Qt::SHIFT | Qt::Key_Z,
                                               Qt::CTRL | Qt::Key_Y};

/// Checks what was entered into a box before anything else happens when the user leaves the box:
/// by Tab or Enter, by a click elsewhere, by a shortcut. A refused entry keeps the focus, with its
/// text selected, and what the user was about to do does not happen. Enter goes on to the next
/// box that is checked. Escape takes an entry back, or leaves a box where there is none, without a
/// check; a dialog it closes. A letter with Alt presses its button as soon as the entry is checked.
/// Undo, redo and buttons that take no focus do not leave the box.
class EntryGuard : public QObject {
 public:
  explicit EntryGuard(QObject* parent = nullptr);

  /// `refused` runs when `box` is left and says whether it may not be. `taken` is what it changes
  /// even then, for Escape to put back.
  void Watch(QWidget* box, const std::function<bool()>& refused, std::string* taken = nullptr);

  /// Runs an operation. What it writes into the box that has the focus was not typed: Escape goes
  /// back to that.
  void Follow(const std::function<void()>& operation);

  /// Runs an operation that may give all boxes other texts. What was typed and not checked yet is
  /// taken back first; no box is checked that loses the focus on the way.
  void Replace(const std::function<void()>& operation);

  // Take back what was typed into the box that has the focus, or bring it back; false when there
  // is nothing of its own, or it is no box.

  bool UndoTyping();
  bool RedoTyping();

  /// What was typed into the box that has the focus is no longer its own.
  void ForgetTyping() { Begin(entry_.Box); }

  /// Whether something was typed into the box that has the focus and not checked yet.
  bool HasTyping() const;

  /// Checks the box that has the focus of a window. Returns whether it may be left.
  [[nodiscard]] bool Leave(const QWidget* window);

  /// Counts the times that the user came to a box, or went on in one that was accepted; 0 for a box
  /// that has not the focus.
  int Visit(const QWidget* box) const { return box == entry_.Box ? visit_ : 0; }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  struct Check {
    std::function<bool()> Refused;
    std::string* Taken = nullptr;
  };
  /// What has the focus of the main window, and what it held when the user came to it, or when it
  /// was accepted since.
  struct Entry {
    QPointer<QWidget> Box;
    QString Text;  ///< of a box of one line
    std::string Taken;
  };

  /// The box that has the focus of a window, whether that is active or not.
  QWidget* BoxInFocus(const QWidget* window) const;
  bool Refuses(QWidget* box);
  bool RefusesClick(QObject* object, QEvent* event);
  bool RefusesShortcut(const QEvent* event);
  static bool PressesAtOnce(QObject* object, QEvent* event);
  bool RefusesKey(QWidget* box, QEvent* event);
  void CheckLostFocus(QWidget* box, QEvent* event);
  void CheckGainedFocus(QObject* object, QEvent* event);
  void Begin(QWidget* box);
  bool PutsBack(QLineEdit* box);
  bool TakesEscape(QObject* object);

  QHash<QObject*, Check> checks_;
  Entry entry_;
  QPointer<QWidget> passed_;  ///< accepted just now, about to lose the focus
  int visit_ = 0;
  /// A check is under way, perhaps with its message on the screen, or a replacement; no other check
  /// begins.
  bool checking_ = false;
};

}  // namespace tarnwick
