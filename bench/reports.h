// Reports as a user asks for them, into files of the run's own folder.
#pragma once

#include <QVector>

namespace Bench {

class Program;

/// All tables of the shown grade are seen and ticked.
void readyForReport(Program &program);
/// 0 PDF, 1 RTF, 2 text.
void saveReport(Program &program, int format);

/// Closes the windows and empties the selection.
void backToEmptySearch(Program &program);

/// Offers the batch print, by its code word, and selects the grades.
void selectForBatch(Program &program, const QVector<int> &grades);
/// From the button to the PDF file. The pages of it.
int printBatch(Program &program);

} // namespace Bench
