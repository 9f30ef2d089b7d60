// Who provides this copy of the program, as the deployment has filled it in.
#pragma once

#include <QString>

namespace Provider {

/// Maker, address, mail and page, each on a line of its own; what is not filled in has none.
QString text();

} // namespace Provider
