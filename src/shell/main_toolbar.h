// The 24 buttons of the main window's tool bar and the texts of their drop-downs.
#pragma once

class ImageList;
class Toolbar;

namespace MainToolbar {

void addButtons(Toolbar &toolbar);

/// One picture for each button that is no separator, in the order of the buttons.
void addPictures(ImageList &images);

/// Gives the buttons that are no separators the image numbers 1, 2, 3, ...
void numberImages(Toolbar &toolbar);

/// The buttons between "Select" and the last two, which show only while materials are open.
void showMaterialButtons(Toolbar &toolbar, bool shown);

} // namespace MainToolbar
