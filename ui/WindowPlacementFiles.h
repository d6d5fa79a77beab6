#pragma once

class QMainWindow;
struct GlobalData;

// The main window's size and place between runs: DefWindowSize.ini in the program folder gives
// the default size, WindowState.ini in the settings folder the last state and place. Sizes in
// both files are in twips, 15 to the pixel.
namespace WindowPlacementFiles {

// Applies the stored size and place to `window`; keys found in neither file leave the window
// at its designed size. A stored place that lies wholly off the screens is not used. Returns
// true when the stored state asks for a maximised window (the caller shows it so). The channel
// pane, when the window has one, gets its stored visibility and width.
bool restore(QMainWindow &window, const GlobalData &folders);

// Writes the window's state and, for a normal window, its top, left, height and width; then
// whether the channel pane is shown, and its width.
void save(const QMainWindow &window, const GlobalData &folders);

} // namespace WindowPlacementFiles
