#pragma once

#include "toolkit/folder_tree.h"

#include <optional>
#include <string>
#include <vector>

class QString;
class QWidget;

namespace tavo {

// Lets the person choose a folder from a tree that reads from `source` and
// comes up at the first of the `starts` that is a folder: the dialogs of
// desktops lose names that are no UTF-8. Gives the folder with its separator,
// or none when the person went away.
std::optional<std::string> Folder_Choose(const FolderSource& source,
                                         const std::vector<std::string>& starts,
                                         const QString& title, QWidget* owner);

} // namespace tavo
