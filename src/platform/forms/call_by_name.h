// Late binding: operations and values of an object reached by their names.
#pragma once

#include <QVariant>

class FormBase;
class QObject;

/// Calls the Q_INVOKABLE operation or slot of that name. Raises 438 where there is none, 450 for another
/// number of arguments, 13 for an argument that does not convert.
QVariant CallByName(QObject &object, const char *name, const QVariantList &arguments = {});
QVariant CallByName(FormBase &form, const char *name, const QVariantList &arguments = {});

/// Sets a Q_PROPERTY by its name. Raises 438 where there is none, 13 for a value that does not convert.
void SetPropertyByName(QObject &object, const char *name, const QVariant &value);
