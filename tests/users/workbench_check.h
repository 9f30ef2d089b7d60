// What has to be right in the windows of the tools, whatever was done to them.
#pragma once

#include <map>
#include <memory>

#include <QString>

class frmCard;
class frmCompare;
class frmFindValue;
class frmValueSheet;
class GradeValues;
class QWidget;
namespace Grades {
struct Grade;
}

class WorkbenchCheck {
public:
    /// A sentence on the first fault in a window of the tools; empty without one. The grades of a window are
    /// those that were selected when it came to the front.
    QString fault(const QWidget &window);
    /// The same of the files in a folder where nothing else is saved. Those are removed.
    static QString fileFault(const QString &folder);

private:
    QString faultIn(const frmCompare &window);
    QString faultIn(const frmFindValue &window);
    QString faultIn(const frmValueSheet &window);
    QString faultIn(const frmCard &window);

    /// Read apart from the window's own.
    std::shared_ptr<const GradeValues> values(const Grades::Grade &grade);

    std::map<int, std::shared_ptr<const GradeValues>> m_values;
    int m_asked = 0; // now and then is enough, and leaves the window its own way meanwhile
};
