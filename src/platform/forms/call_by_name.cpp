#include "platform/forms/call_by_name.h"

#include <array>

#include <QMetaMethod>
#include <QObject>

#include "platform/forms/form_base.h"
#include "platform/runtime/runtime_error.h"

namespace {

QVariant call(QObject &object, const QMetaMethod &method, QVariantList arguments) {
    std::array<QGenericArgument, 10> given;
    for (int i = 0; i < method.parameterCount(); ++i) {
        const QMetaType type = method.parameterMetaType(i);
        QVariant &argument = arguments[i];
        const bool takesVariant = type.id() == QMetaType::QVariant;
        if (!takesVariant && argument.metaType() != type && !argument.convert(type)) throw RuntimeError(13);
        given[static_cast<std::size_t>(i)] = QGenericArgument(
            type.name(), takesVariant ? static_cast<const void *>(&argument) : argument.constData());
    }
    QVariant result;
    QGenericReturnArgument returned;
    const QMetaType type = method.returnMetaType();
    if (type.id() == QMetaType::QVariant) {
        returned = QGenericReturnArgument(type.name(), &result);
    } else if (type.id() != QMetaType::Void) {
        result = QVariant(type);
        returned = QGenericReturnArgument(type.name(), result.data());
    }
    method.invoke(&object, Qt::DirectConnection, returned, given[0], given[1], given[2], given[3], given[4],
                  given[5], given[6], given[7], given[8], given[9]);
    return result;
}

} // namespace

QVariant CallByName(QObject &object, const char *name, const QVariantList &arguments) {
    const QMetaObject *type = object.metaObject();
    bool known = false;
    for (int i = type->methodCount() - 1; i >= 0; --i) { // the class's own before those that it inherits
        const QMetaMethod method = type->method(i);
        if (method.name() != name || method.methodType() == QMetaMethod::Signal) continue;
        known = true;
        if (method.parameterCount() == arguments.size()) return call(object, method, arguments);
    }
    throw RuntimeError(known ? 450 : 438);
}

QVariant CallByName(FormBase &form, const char *name, const QVariantList &arguments) {
    return CallByName(*form.asWidget(), name, arguments);
}

void SetPropertyByName(QObject &object, const char *name, const QVariant &value) {
    if (object.metaObject()->indexOfProperty(name) < 0) throw RuntimeError(438);
    if (!object.setProperty(name, value)) throw RuntimeError(13);
}
