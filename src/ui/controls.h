// The kinds of control that the windows are made of. See control.h for what they share.
//
// The `Perform...` functions are a hand's doing: they do nothing on a control that is disabled or
// hidden, and a click moves the keyboard focus to the control first, as it does on a screen (so a
// text box that loses the focus has been read before the click is handled).
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/check_state.h"
#include "ui/control.h"
#include "ui/progress.h"

namespace quillomat {

class TextBox final : public Control {
 public:
  static constexpr ControlKind kKind = ControlKind::kTextBox;

  TextBox(Form& owner, ControlName name) : Control(owner, std::move(name), kKind) {}

  /// UTF-8 (a path may hold other bytes too); line breaks are CR LF.
  [[nodiscard]] const std::string& Text() const { return text_; }
  /// A new text puts the caret at its start.
  void SetText(std::string text);
  /// A hand's doing, typed, pasted or dropped: as SetText, and a new text fires Entered, too.
  void EnterText(std::string text);
  /// Adds whole characters at the end, in amortised constant time for each; the caret stays.
  void AppendText(std::string_view text);
  /// In characters; costs nothing.
  [[nodiscard]] std::size_t Length() const { return length_; }

  /// The caret: how many characters stand before it.
  [[nodiscard]] std::size_t SelStart() const { return selStart_; }
  /// A place behind the end is the end.
  void SetSelStart(std::size_t selStart);
  /// So many characters behind the caret are selected: what is typed takes their place. None of a
  /// new text.
  [[nodiscard]] std::size_t SelLength() const { return selLength_; }
  void Select(std::size_t selStart, std::size_t length);

  /// The text has changed, whoever changed it.
  Event<> Change;
  /// The user has changed the text.
  Event<> Entered;
  /// A part of it was selected, perhaps once more.
  Event<> Selected;

 private:
  std::string text_;
  std::size_t length_ = 0;
  std::size_t selStart_ = 0;
  std::size_t selLength_ = 0;
};

/// A control that shows a caption.
class CaptionedControl : public Control {
 public:
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption) { Assign(caption_, std::move(caption)); }

 protected:
  CaptionedControl(Form& owner, ControlName name, ControlKind kind, std::string caption)
      : Control(owner, std::move(name), kind), caption_(std::move(caption)) {}

 private:
  std::string caption_;
};

class CheckBox final : public CaptionedControl {
 public:
  static constexpr ControlKind kKind = ControlKind::kCheckBox;

  CheckBox(Form& owner, ControlName name, std::string caption)
      : CaptionedControl(owner, std::move(name), kKind, std::move(caption)) {}

  [[nodiscard]] CheckState Value() const { return value_; }
  /// A new value fires Click, whoever sets it.
  void SetValue(CheckState value);
  void SetChecked(bool checked) {
    SetValue(checked ? CheckState::kChecked : CheckState::kUnchecked);
  }
  /// Whether the value is exactly "checked".
  [[nodiscard]] bool IsChecked() const { return IsSet(value_); }

  /// A checked or grey box is unchecked, an unchecked one checked.
  void PerformClick();

  Event<> Click;

 private:
  CheckState value_ = CheckState::kUnchecked;
};

/// One of several that exclude each other: the option buttons of a window with the same group
/// number.
class OptionButton final : public CaptionedControl {
 public:
  static constexpr ControlKind kKind = ControlKind::kOptionButton;

  OptionButton(Form& owner, ControlName name, std::string caption, int group = 0)
      : CaptionedControl(owner, std::move(name), kKind, std::move(caption)), group_(group) {}

  [[nodiscard]] bool Value() const { return value_; }
  /// True first sets the others of the group to false, and fires Click if this one was false.
  void SetValue(bool value);

  void PerformClick();

  Event<> Click;

 private:
  int group_;
  bool value_ = false;
};

/// A list of which at most one item is selected; its text cannot be edited.
class ComboBox final : public Control {
 public:
  static constexpr ControlKind kKind = ControlKind::kComboBox;

  ComboBox(Form& owner, ControlName name) : Control(owner, std::move(name), kKind) {}

  void AddItem(std::string item);
  /// The item at `listIndex`, which there is, in other words. Fires no Click.
  void SetItem(int listIndex, std::string item);
  /// What the items are for, in a few words for the user each; "" for nothing to say. A face shows
  /// them behind the items, of whose names they are no part.
  void SetItemNotes(std::vector<std::string> notes) { Assign(notes_, std::move(notes)); }
  [[nodiscard]] std::string ItemNote(int listIndex) const;
  /// Removes all items; none is selected then. Fires no Click.
  void Clear();
  [[nodiscard]] std::span<const std::string> Items() const { return items_; }

  /// The selected item, counted from 0, or -1 for none.
  [[nodiscard]] int ListIndex() const { return listIndex_; }
  /// A new index fires Click. Throws RunTimeError 380 for an index below -1 or beyond the last
  /// item.
  void SetListIndex(int listIndex);
  /// The selected item, or "".
  [[nodiscard]] std::string Text() const;

  /// Takes an item by hand.
  void PerformChoice(int listIndex);

  /// Why an item is of no use now, in words for the user; "" when it is of use. A face shows such
  /// an item greyed. It can be selected all the same, and Click tells what comes of it.
  [[nodiscard]] std::string ReasonAgainst(int listIndex) const;
  /// `reasonAgainst` is asked whenever somebody wants to know.
  void SetReasonAgainst(std::function<std::string(int listIndex)> reasonAgainst) {
    reasonAgainst_ = std::move(reasonAgainst);
  }

  Event<> Click;

 private:
  std::vector<std::string> items_;
  /// As many as the items, or fewer.
  std::vector<std::string> notes_;
  std::function<std::string(int)> reasonAgainst_;
  int listIndex_ = -1;
};

class Label final : public CaptionedControl {
 public:
  static constexpr ControlKind kKind = ControlKind::kLabel;

  Label(Form& owner, ControlName name, std::string caption = {}, std::string fontName = "Arial")
      : CaptionedControl(owner, std::move(name), kKind, std::move(caption)),
        fontName_(std::move(fontName)) {}

  [[nodiscard]] const std::string& FontName() const { return fontName_; }
  void SetFontName(std::string fontName) { Assign(fontName_, std::move(fontName)); }

  void SetCaption(std::string caption);
  /// A caption that ends in a number: `text`, blanks up to the number's width, and `figure`. A face
  /// may put the two apart.
  void SetCaption(std::string_view text, std::string_view justifiedFigure);
  /// The caption without its number, and the number without blanks; "" when there is none.
  [[nodiscard]] std::string_view CaptionText() const;
  [[nodiscard]] std::string_view Figure() const;

  /// While the caption is a bar made of characters: the share that it stands for.
  [[nodiscard]] const std::optional<Progress>& ShownProgress() const { return progress_; }
  void SetProgress(std::optional<Progress> progress) { Assign(progress_, progress); }

  void PerformClick();
  void PerformDoubleClick();

  Event<> Click;
  Event<> DoubleClick;

 private:
  std::string fontName_;
  /// Of the caption's text, in bytes; nothing when there is no number behind it.
  std::optional<std::size_t> textBytes_;
  std::optional<Progress> progress_;
};

class CommandButton final : public CaptionedControl {
 public:
  static constexpr ControlKind kKind = ControlKind::kCommandButton;

  CommandButton(Form& owner, ControlName name, std::string caption)
      : CaptionedControl(owner, std::move(name), kKind, std::move(caption)) {}

  void PerformClick();

  Event<> Click;
};

class Frame final : public CaptionedControl {
 public:
  static constexpr ControlKind kKind = ControlKind::kFrame;

  Frame(Form& owner, ControlName name, std::string caption = {})
      : CaptionedControl(owner, std::move(name), kKind, std::move(caption)) {}
};

}  // namespace quillomat
