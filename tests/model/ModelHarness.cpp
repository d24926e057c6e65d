#include "ModelHarness.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

SignalRecorder::SignalRecorder(TControls &controls)
    : m_controls(controls) {
    const QMetaObject &own = staticMetaObject;
    const QMetaMethod slot = own.method(own.indexOfMethod("note()"));
    const QMetaObject &model = TControls::staticMetaObject;
    for (int i = model.methodOffset(); i < model.methodCount(); ++i) {
        if (model.method(i).methodType() == QMetaMethod::Signal)
            connect(&controls, model.method(i), this, slot);
    }
}

void SignalRecorder::note() {
    QString name = QString::fromLatin1(m_controls.metaObject()->method(senderSignalIndex()).name());
    if (name.endsWith("Changed"_L1))
        name.chop(7);
    m_names.append(name);
}

std::string SignalRecorder::take() {
    return std::exchange(m_names, {}).join(u' ').toStdString();
}

QStringList criticalMessages(const std::function<void()> &run) {
    static QStringList texts;
    texts.clear();
    const auto before =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            if (type == QtCriticalMsg)
                texts.append(text);
        });
    run();
    qInstallMessageHandler(before);
    return texts;
}

QVariantMap json(const char *text) {
    return QJsonDocument::fromJson(text).toVariant().toMap();
}

QVariantMap testCatalogue() {
    return json(R"({
        "Auto Param": { "auto": { "gui": { "parameters": { "x": { "default": 1 } } } } },
        "Broken": "no map",
        "Denoise": {
            "Severe Noise": { "gui": { "parameters": { "param1": { "default": 0.1 } } } },
            "Low Light Beta": { "gui": { "parameters": { "param1_normalv2": { "default": 0.3 }, "b": {} } } }
        },
        "Sharpen": { "Sharpen Strong": {} }
    })");
}

ThreeImages::ThreeImages() {
    setModelParamInfo(testCatalogue());
    loadImages({u"/a.jpg"_s, u"/b.jpg"_s, u"/c.nef"_s});
}

void addFilter(TControls &controls, const QString &filterName, const QString &category,
               const QVariantMap &params) {
    controls.setParams(filterName, {{u"category"_s, category}, {u"enabled"_s, true}, {u"params"_s, params}});
    controls.setFilterOrder(controls.filterOrder() + QStringList(filterName));
}

int changes(const TControls &controls) {
    return controls.currentControls().value(u"changesCount"_s).toInt();
}

QVariantMap filterOf(const TControls &controls, const QString &filterName, qint64 index) {
    return controls.getControls(index).value(filterName).toMap();
}

void checkOperations(const QList<Operation> &operations, const std::function<void(TControls &)> &prepare) {
    for (const Operation &operation : operations) {
        SCOPED_TRACE(operation.name);
        ThreeImages controls;
        prepare(controls);
        for (int i = 0; i < 3; ++i)
            controls.setJustSaved(i);
        const int before = changes(controls);
        SignalRecorder recorder(controls);
        operation.run(controls);
        EXPECT_EQ(recorder.take(), operation.fires);
        EXPECT_EQ(changes(controls) - before, operation.effect == Nothing ? 0 : 1);
        EXPECT_EQ(controls.currentControls().value(u"justSaved"_s).toBool(), operation.effect != Marked);
    }
}
