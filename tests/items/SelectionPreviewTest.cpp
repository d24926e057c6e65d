#include "items/TSelectionPreview.h"

#include <QColor>
#include <QColorSpace>
#include <QQuickWindow>
#include <QTest>

#include <gtest/gtest.h>

#include <numbers>

using namespace Qt::StringLiterals;

namespace {

/// Left half red, right half green; the lower half darker.
std::shared_ptr<ImageData> quarters(int width, int height) {
    auto image = std::make_shared<ImageData>(width, height, 3, SampleType::UInt8);
    for (int y = 0; y < height; ++y) {
        auto row = image->samples<quint8>(y);
        std::ranges::fill(row, quint8(0));
        for (int x = 0; x < width; ++x)
            row[std::size_t(3 * x + (x < width / 2 ? 0 : 1))] = y < height / 2 ? 250 : 120;
    }
    return image;
}

class Preview : public testing::Test {
protected:
    void SetUp() override {
        m_window.resize(200, 200);
        m_window.setColor(Qt::blue);
        m_item = new TSelectionPreview(m_window.contentItem());
        m_item->setSize({200, 200});
        m_window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    }
    void show(const std::shared_ptr<ImageData> &image, const QVariantMap &more = {}) {
        QVariantMap data = more;
        data.insert(u"image"_s, QVariant::fromValue(image));
        m_item->setImageData(data);
    }
    QColor pixel(int x, int y) {
        EXPECT_TRUE(QTest::qWaitFor([this] {
            m_window.grabWindow();
            return m_item->isComplete();
        }));
        return m_window.grabWindow().pixelColor(x, y);
    }

    QQuickWindow m_window;
    TSelectionPreview *m_item = nullptr;
};

constexpr QColor Red(250, 0, 0), Green(0, 250, 0), DarkRed(120, 0, 0), Blue(0, 0, 255);

TEST_F(Preview, ShowsEveryCornerAtEverySizeAndZoom) {
    for (const int side : {1, 2, 100, 513, 3000}) {
        SCOPED_TRACE(side);
        show(quarters(side, side));
        m_item->setImageSize(QSizeF(side, side));
        const QColor corner = pixel(10, 10);
        EXPECT_EQ(corner, side == 1 ? QColor(0, 120, 0) : Red);
        if (side > 1) {
            EXPECT_EQ(pixel(190, 10), Green);
            EXPECT_EQ(pixel(10, 190), DarkRed);
        }
    }
    m_item->setSize({8000, 8000});
    m_item->setPosition({-7800, 0});
    EXPECT_EQ(pixel(100, 100), Green) << "panned to the right end of a picture seen at 8:3";
}

TEST_F(Preview, CropTurnAndRegionPlaceThePixels) {
    show(quarters(400, 400));
    m_item->setImageSize({400, 400});
    m_item->setCropRect({0.5, 0, 0.5, 0.5});
    EXPECT_EQ(pixel(100, 100), Green);
    m_item->setCropRect({0, 0, 1, 1});
    m_item->setImageRotation(std::numbers::pi / 2);
    EXPECT_EQ(pixel(150, 50), Red) << "what was at the left top stands at the right top";
    m_item->setImageRotation(0);

    show(quarters(100, 100), {{u"requestRoi"_s, QRect(100, 100, 50, 50)}, {u"scale"_s, 2.0}});
    m_item->setImageSize({800, 800});
    EXPECT_EQ(pixel(52, 52), Red);
    EXPECT_EQ(pixel(72, 52), Green);
    EXPECT_EQ(pixel(20, 20), Blue) << "outside the processed region nothing is drawn";
}

TEST_F(Preview, ProfileIsLeftAsideOnRequest) {
    const auto image = quarters(400, 400);
    image->setIccProfile(QColorSpace(QColorSpace::AdobeRgb).iccProfile());
    show(image);
    m_item->setImageSize({400, 400});
    EXPECT_NE(pixel(20, 20), Red);
    m_item->setSrgbFallback(true);
    EXPECT_EQ(pixel(20, 20), Red) << "at once, on the picture that is shown";
}

TEST_F(Preview, ViewportCutsAndHidingClears) {
    show(quarters(400, 400));
    m_item->setImageSize({400, 400});
    m_item->setViewportEndX(0.25);
    EXPECT_EQ(pixel(20, 20), Red);
    EXPECT_EQ(pixel(60, 20), Blue);
    m_item->setShowImage(false);
    EXPECT_EQ(m_window.grabWindow().pixelColor(20, 20), Blue);
    m_item->setShowImage(true);
    show(nullptr);
    EXPECT_EQ(m_window.grabWindow().pixelColor(20, 20), Blue);
}

} // namespace
