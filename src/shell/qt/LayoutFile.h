#pragma once

#include <QString>

/// The file in which the user's arrangement of panes and toolbars outlives the process.
///
/// It begins with a line that tells what it is, in which version, how many bytes follow and what their digest is. So
/// what was written by something else, or not to its end, never reaches the toolkit.
namespace tintora {

class DockWorkspace;

/// Arranges panes and toolbars as the file has them. False, and the arrangement stays, where there is no such file, it
/// can't be read, or it is no whole layout file.
bool OpenLayout(DockWorkspace& workspace, const QString& path);

/// Writes the present arrangement into the file, whose folder is made. False, and a file that was there stays, where it
/// can't be written.
bool SaveLayout(const DockWorkspace& workspace, const QString& path);

}  // namespace tintora
