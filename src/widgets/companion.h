#pragma once

#include <QString>
#include <functional>

class QAbstractItemModel;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTableView;

namespace monitra::widgets {

/// What the windows beside the main one have in common.

/// A table that only shows, whose tab key leads on and whose columns are as wide as their heads.
/// The model must outlive it.
QTableView* makeTable(QAbstractItemModel* model, const char* name);

/// A label for a text that comes and goes, which is cut where it is too long and never makes the
/// window wider, or wraps.
QLabel* makeTellingLabel(const char* name, bool wraps = false);

/// Shows the text, to a screen reader too.
void tell(QLabel* label, const QString& text);

/// A button at the end of a row; "&" in the text marks its mnemonic.
QPushButton* addButton(QHBoxLayout* row, const char* text, const char* tip,
                       std::function<void()> act);

}  // namespace monitra::widgets
