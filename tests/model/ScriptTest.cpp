#include "ModelHarness.h"

#include <QQmlComponent>
#include <QQmlEngine>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

TEST(Scripts, UseTheModelByItsNames) {
    qmlRegisterType<TControls>("TControls", 1, 0, "TControls");
    qmlRegisterUncreatableMetaObject(TImageSettings::staticMetaObject, "TImageSettings", 1, 0,
                                     "TImageSettings", u"Cannot create TImageSettings"_s);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQml
        import TControls
        import TImageSettings
        TControls {
            id: control
            defaultSubjectType: "Subject"
            property int opened: 0
            property list<bool> results: []
            onImagesOpened: (imagePaths) => opened = imagePaths.length
            Component.onCompleted: {
                loadImages(["/a.jpg", "/b.nef"])
                setAutoPilotStatus(TImageSettings.On)
                selectedImages = [1, 0, 1]
                setAutoPilotSuggestionOrder([{ filterName: "Denoise", subject: "" }], "/b.nef")
                results.push(setParam("Denoise", "list", [1, 2]) && !setParam("Denoise", "list", [1, 2]))
                results.push(setParam("Denoise", "mode", "scale") && currentControls.Denoise.params.mode === "scale")
                results.push(setParams("Denoise", { params: { a: 0.5 }, enabled: true }))
                results.push(currentControls.autoPilot === TImageSettings.On && TImageSettings.Centimeters === 3)
                results.push(getAutoPilotSuggestionOrder(1)[0].filterName === "Denoise")
                filterOrder = ["Denoise"]
                results.push(getFilterOrder(0).length === 1 && areFiltersEnabled && areFiltersEnabledForImage(0))
                currentIndex = 1
                results.push(isRaw && indexOf("/b.nef") === 1 && size() === 2)
                results.push(ENHANCE_SCALE_MIN === 0.2 && ENHANCE_PIXEL_MAX === 32000 && enhMaxPx() === 32000)
                const warning = applyPresetToImage("/gone.jpg", currentControls, ["Denoise"], true)
                results.push(warning.title === "Could not apply preset")
                setNoiseLevel(3)
                setBlurLevel(99)
                results.push(currentControls.noise_level === 3 && currentControls.blur_level === -1)
                forgetEdits()
                setParam("Denoise", "mode", "width")
                recordEdit()
                results.push(canUndo && undoEdit() && canRedo && !canUndo)
                applyAutopilotToImage()
                results.push(isModifiedFromAutopilot("/a.jpg") && !isModifiedFromAutopilot("Denoise", "Denoise"))
            }
        })",
                      QUrl());
    const std::unique_ptr<QObject> object(component.create());
    ASSERT_TRUE(object) << component.errorString().toStdString();
    const auto results = object->property("results").value<QList<bool>>();
    EXPECT_EQ(results, QList<bool>(12, true));
    EXPECT_EQ(object->property("opened").toInt(), 2);
    EXPECT_EQ(qobject_cast<TControls *>(object.get())->selectedImages(), QList<int>({1, 0}));
}
