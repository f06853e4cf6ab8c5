// What a screen reader calls the controls of a window: their captions; for a control that has none,
// or that shares its caption with another, the captions of others in its neighbourhood. A widget of
// the .ui file lists them by name in its property "namedBy": "cmdClearFolder optFolder" is read as
// "Clear Folder". The tip is the description, never the name.
#pragma once

#include <QAbstractItemView>
#include <QWidget>

namespace quillomat {

/// Names the widgets that have the property "namedBy" after the captions as they are now.
void ShowAccessibleNames(const QWidget& window);

/// Has a screen reader say the text of a label, since something has come of what the user did.
void Announce(QWidget& label);

/// Lets a screen reader read an item of a list out, as if the keyboard stood on it.
void AnnounceItem(QAbstractItemView& list, int row);

}  // namespace quillomat
