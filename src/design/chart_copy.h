// One chart made like another.
#pragma once

class MSChart;

/// Copies type, data, title, axis titles, legend and the label of every column. Leaves `source` on its last
/// column.
void copyChart(MSChart &source, MSChart &target);
