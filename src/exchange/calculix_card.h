// A material card for CalculiX and Abaqus.
#pragma once

#include <QString>

struct MaterialCard;

/// Lines of at most 132 ASCII characters with LF behind each, the head as comments. Without any block there
/// is the head alone, because a material without properties is none.
QString calculixCard(const MaterialCard &card);
