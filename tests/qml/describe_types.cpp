// Writes descriptions of the native types that the entry registers, for the linter of documents:
// describe_types FOLDER makes FOLDER/<module>/qmldir and types.qmltypes out of their meta-objects.

#include "app/studio/QmlTypes.h"
#include "model/TImageSettings.h"

#include <QDir>
#include <QGuiApplication>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

const QList<std::pair<QString, QStringList>> modules = {
    {u"TControls"_s, {u"TControls"_s}},
    {u"TPresetsManager"_s, {u"TPresetsManager"_s}},
    {u"ImageDataUtils"_s, {u"ImageDataUtils"_s}},
    {u"PropertyLinker"_s, {u"PropertyLinker"_s}},
    {u"PropertyTracker"_s, {u"PropertyTracker"_s}},
    {u"MouseListener"_s, {u"MouseListener"_s}},
    {u"TabletListener"_s, {u"TabletListener"_s}},
    {u"TImageIO"_s, {u"TImageReader"_s, u"TImageWriter"_s, u"TThumbnailWriter"_s}},
    {u"TImageProcessor"_s, {u"TEngineController"_s, u"TSelectionPreview"_s}},
    {u"TImageUtils"_s, {u"TImageUtils"_s}},
    {u"TNetwork"_s, {u"TEventTracker"_s}},
    {u"TQmlUtils"_s, {u"OSUtils"_s}},
    {u"QWindowKit"_s, {u"WindowAgent"_s}},
};

QString typeName(const QMetaType &type) {
    if (type.flags() & QMetaType::IsEnumeration)
        return u"int"_s;
    const QString name = QString::fromLatin1(type.name());
    const QString bare = name.endsWith(u'*') ? name.chopped(1) : name;
    // What the linter has no description of is any value to it.
    static const QStringList known = {u"bool"_s,    u"int"_s,         u"double"_s,       u"float"_s,
                                      u"QString"_s, u"QStringList"_s, u"QUrl"_s,         u"QRectF"_s,
                                      u"QRect"_s,   u"QSize"_s,       u"QSizeF"_s,       u"QPoint"_s,
                                      u"QPointF"_s, u"QColor"_s,      u"QVariantMap"_s,  u"QVariantList"_s,
                                      u"QObject"_s, u"QQuickItem"_s,  u"QQuickWindow"_s, u"qlonglong"_s,
                                      u"qint64"_s,  u"void"_s};
    return known.contains(bare) ? bare : u"QVariant"_s;
}

void writeParameters(QTextStream &out, const QMetaMethod &method) {
    const QList<QByteArray> names = method.parameterNames();
    for (int i = 0; i < method.parameterCount(); ++i) {
        const QMetaType type = method.parameterMetaType(i);
        out << "\n            Parameter { name: \"" << names.value(i) << "\"; type: \"" << typeName(type)
            << '"' << (type.flags() & QMetaType::IsPointer ? "; isPointer: true" : "") << " }";
    }
}

void writeEnum(QTextStream &out, const QMetaEnum &values) {
    out << "        Enum { name: \"" << values.name() << "\"; values: [";
    for (int i = 0; i < values.keyCount(); ++i)
        out << (i ? ", \"" : "\"") << values.key(i) << '"';
    out << "] }\n";
}

void writeType(QTextStream &out, const QString &module, const QString &name, const QMetaObject &meta,
               const QMetaObject &base) {
    out << "    Component {\n        name: \"" << name << "\"\n        accessSemantics: \"reference\"\n"
        << "        prototype: \"" << base.className() << "\"\n        exports: [\"" << module << '/' << name
        << " 1.0\"]\n        exportMetaObjectRevisions: [256]\n";
    if (const int at = meta.indexOfClassInfo("DefaultProperty"); at >= 0)
        out << "        defaultProperty: \"" << meta.classInfo(at).value() << "\"\n";
    for (int i = base.enumeratorCount(); i < meta.enumeratorCount(); ++i)
        writeEnum(out, meta.enumerator(i));
    for (int i = base.propertyCount(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        const bool isList = QByteArrayView(property.typeName()).startsWith("QQmlListProperty");
        out << "        Property { name: \"" << property.name() << "\"; type: \""
            << (isList ? u"QObject"_s : typeName(property.metaType())) << "\"; read: \"" << property.name()
            << '"';
        if (property.hasNotifySignal())
            out << "; notify: \"" << property.notifySignal().name() << '"';
        out << (isList ? "; isList: true" : "")
            << (property.metaType().flags() & QMetaType::IsPointer ? "; isPointer: true" : "")
            << (property.isWritable() || isList ? "; write: \"x\"" : "; isReadonly: true") << " }\n";
    }
    for (int i = base.methodCount(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const bool isSignal = method.methodType() == QMetaMethod::Signal;
        out << (isSignal ? "        Signal" : "        Method") << " { name: \"" << method.name() << '"';
        if (!isSignal && method.returnMetaType() != QMetaType::fromType<void>())
            out << "; type: \"" << typeName(method.returnMetaType()) << '"';
        writeParameters(out, method);
        out << " }\n";
    }
    out << "    }\n";
}

bool writeModule(const QDir &folder, const QString &module, const QString &types) {
    QFile directory(folder.filePath(module + u"/qmldir"_s));
    QFile description(folder.filePath(module + u"/types.qmltypes"_s));
    if (!folder.mkpath(module) || !directory.open(QFile::WriteOnly) || !description.open(QFile::WriteOnly))
        return false;
    directory.write("module " + module.toUtf8() + "\ntypeinfo types.qmltypes\nimport QtQuick\n");
    description.write("import QtQuick.tooling 1.2\n\nModule {\n" + types.toUtf8() + "}\n");
    return true;
}

} // namespace

int main(int argc, char **argv) {
    const QGuiApplication application(argc, argv);
    const QDir folder(QGuiApplication::arguments().value(1));
    QQmlEngine engine;
    registerQmlTypes();
    registerWindowAgent(engine);
    for (const auto &[module, names] : modules) {
        QString types;
        QTextStream out(&types);
        for (const QString &name : names) {
            QQmlComponent component(&engine);
            component.setData("import %1\n%2 {}"_L1.arg(module, name).toUtf8(), QUrl());
            const std::unique_ptr<QObject> object(component.create());
            if (!object) {
                qCritical().noquote() << component.errorString();
                return 1;
            }
            const bool isItem = qobject_cast<QQuickItem *>(object.get());
            writeType(out, module, name, *object->metaObject(),
                      isItem ? QQuickItem::staticMetaObject : QObject::staticMetaObject);
        }
        out.flush();
        if (!writeModule(folder, module, types))
            return 1;
    }
    QString settings;
    QTextStream out(&settings);
    writeType(out, u"TImageSettings"_s, u"TImageSettings"_s, TImageSettings::staticMetaObject,
              QObject::staticMetaObject);
    out.flush();
    return writeModule(folder, u"TImageSettings"_s, settings) ? 0 : 1;
}
