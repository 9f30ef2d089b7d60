// Short runs of the program in a process of its own, for what only a fresh process can tell.
#pragma once

#include <QString>
#include <QVector>

namespace Bench {

/// Sets the scene, prints a line of two figures and returns the status of the process.
///   start     from the start window to the painted search window; the line tells that it stands
///   list      the search window with the whole list: the resident megabytes
///   ten       these grades shown: the same
///   ten-all   these grades, all tables of each visited: the same
///   values    the search window, and the values of all grades read: the megabytes by which the peak lies
///   above
///             what was resident before
///   batch     these grades printed: the megabytes by which the peak lies above what was resident before, and
///   the
///             pages
int runScene(const QString &scene, const QString &database, const QVector<int> &grades);

} // namespace Bench
