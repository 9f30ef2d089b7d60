// The arrows of the viewer's tool bar, in the text colour of the theme and sharp at any scale.
#pragma once

#include <QIcon>

namespace Printing {

enum class Arrow { First, Previous, Next, Last, Up, Down };

QIcon arrowIcon(Arrow arrow);

} // namespace Printing
