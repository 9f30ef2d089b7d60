// A material card for Ansys MAPDL.
#pragma once

#include <QString>

struct MaterialCard;

/// Commands of /PREP7 for material number 1, in lines of at most 128 ASCII characters with LF behind each,
/// the head as comments.
QString mapdlCard(const MaterialCard &card);
