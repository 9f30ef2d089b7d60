#include "data/CompatibleGroup.h"

QString CompatibleGroup::Key() const {
    return QStringLiteral("groupID") + QString::number(m_groupID);
}
