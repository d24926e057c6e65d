#include "MainSettings.h"

#include <QDebug>
#include <QEvent>
#include <QFile>
#include <QMetaProperty>
#include <QTimerEvent>

using namespace Qt::StringLiterals;

namespace {
constexpr int MillisecondsToDisk = 500;
}

bool PatientSettings::event(QEvent *event) {
    if (event->type() != QEvent::UpdateRequest)
        return QSettings::event(event);
    if (!m_wait.isActive())
        m_wait.start(MillisecondsToDisk, this);
    return true;
}

void PatientSettings::timerEvent(QTimerEvent *event) {
    if (event->timerId() != m_wait.timerId())
        return QSettings::timerEvent(event);
    m_wait.stop();
    QEvent update(QEvent::UpdateRequest);
    QSettings::event(&update);
}

MainSettings::MainSettings(QObject *parent)
    : QObject(parent) {
    const QMetaObject &meta = staticMetaObject;
    const QMetaMethod storeSlot = meta.method(meta.indexOfSlot("store()"));
    for (const Preference &preference : preferenceTable()) {
        read(preference);
        connect(this, meta.property(meta.indexOfProperty(preference.key.toLatin1())).notifySignal(), this,
                storeSlot);
    }
}

// A key that is missing is written, too: others read the store itself.
void MainSettings::read(const Preference &preference) {
    const QByteArray name = preference.key.toLatin1();
    if (!m_store.contains(preference.key)) {
        m_store.setValue(preference.key, property(name));
        return;
    }
    const QVariant value = validPreference(preference, m_store.value(preference.key));
    if (value.isValid()) {
        setProperty(name, value);
        return;
    }
    qWarning().noquote() << "The setting %1 held no valid value; it has its default now."_L1.arg(
        preference.key);
    m_store.setValue(preference.key, property(name));
}

void MainSettings::store() {
    const QMetaMethod changed = metaObject()->method(senderSignalIndex());
    const QString key = QString::fromLatin1(changed.name()).chopped(qstrlen("Changed"));
    m_store.setValue(key, property(key.toLatin1()));
    Q_EMIT stored(key);
}

void MainSettings::feed(QObject *engine, const QStringList &except) {
    QHash<QString, QByteArray> ways;
    for (const Preference &preference : preferenceTable()) {
        if (!preference.engineProperty.isEmpty() && !except.contains(preference.engineProperty))
            ways.insert(preference.key, preference.engineProperty.toLatin1());
    }
    const auto pass = [this, engine, ways](const QString &key) {
        if (const QByteArray to = ways.value(key); !to.isEmpty())
            engine->setProperty(to, property(key.toLatin1()));
    };
    for (auto way = ways.keyBegin(); way != ways.keyEnd(); ++way)
        pass(*way);
    connect(this, &MainSettings::stored, engine, pass);
}

void MainSettings::dropVanishedFolders() {
    QVariantList kept;
    for (const QVariant &entry : std::as_const(m_outputFolderList)) {
        const QString value = entry.toMap().value(u"value"_s).toString();
        if (value == "preserve"_L1 || value == "browse"_L1 || QFile::exists(value))
            kept.append(entry);
    }
    if (kept.size() != m_outputFolderList.size())
        setProperty("outputFolderList", kept);
}
