// A group of materials that share data. The database has such groups; no window shows them yet.
#pragma once

#include <QString>

class CompatibleGroup {
public:
    qint16 GroupID() const { return m_groupID; }
    void setGroupID(qint16 id) { m_groupID = id; }
    const QString &Source() const { return m_source; }
    void setSource(const QString &source) { m_source = source; }
    const QString &GroupName() const { return m_groupName; }
    void setGroupName(const QString &name) { m_groupName = name; }

    /// "groupID" and the number: fit for a keyed collection.
    QString Key() const;

private:
    qint16 m_groupID = 0;
    QString m_source;
    QString m_groupName;
};
