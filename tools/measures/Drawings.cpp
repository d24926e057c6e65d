#include "Drawings.h"

#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>

#include <opencv2/imgproc.hpp>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using Random = QRandomGenerator;
using Draw = void (*)(QPainter &, Random &);

const QString Prose = u"The ferry leaves at 6:40 from the old quay; tickets (3.20 per head) are sold aboard. "
                      u"Dogs & bicycles travel free, luggage over 23 kg does not."_s;
const QColor Accents[] = {0x2a6fdb, 0xd9482b, 0x1f9d63, 0xe3a51a, 0x8a4fbe};

QFont font(const QString &family, int pixels, bool bold = false) {
    QFont found(family);
    found.setPixelSize(pixels);
    found.setBold(bold);
    found.setHintingPreference(QFont::PreferNoHinting);
    return found;
}

void prose(QPainter &p, Random &) {
    p.fillRect(0, 0, 640, 480, QColor(0xfdfcf8));
    p.setPen(QColor(0x1c1c22));
    int y = 12;
    for (const int pixels : {32, 26, 20, 15, 12}) {
        p.setFont(font(pixels % 4 ? u"DejaVu Serif"_s : u"Inter"_s, pixels));
        QRect used;
        p.drawText(QRect(16, y, 608, 480 - y), Qt::TextWordWrap, Prose, &used);
        y = used.bottom() + 6;
    }
}

void panel(QPainter &p, Random &random) {
    p.fillRect(0, 0, 640, 480, QColor(0xeceef2));
    p.fillRect(0, 0, 180, 480, QColor(0x2b3040));
    for (int row = 0; row < 9; ++row) {
        const QColor accent = Accents[row % 5];
        p.setPen(Qt::NoPen);
        p.setBrush(row == 2 ? QColor(0x44506e) : QColor(0x2b3040));
        p.drawRoundedRect(QRectF(10, 14 + row * 50, 160, 40), 8, 8);
        p.setBrush(accent);
        p.drawEllipse(QPointF(32, 34 + row * 50), 9, 9);
        p.setBrush(Qt::white);
        p.setPen(QPen(QColor(0xb8bfcc), 1));
        p.drawRoundedRect(QRectF(200.5, 14.5 + row * 50, 420, 40), 6, 6);
        p.setPen(QPen(QColor(0xb8bfcc), 3));
        p.drawLine(360, 34 + row * 50, 560, 34 + row * 50);
        const int at = 360 + random.bounded(200);
        p.setPen(QPen(accent, 3));
        p.drawLine(360, 34 + row * 50, at, 34 + row * 50);
        p.setBrush(Qt::white);
        p.drawEllipse(QPointF(at, 34 + row * 50), 7, 7);
        p.setFont(font(u"Inter"_s, 14, row == 2));
        p.setPen(QColor(0xe8eaf0));
        p.drawText(52, 39 + row * 50, u"Folder %1"_s.arg(row * 37 % 64));
        p.setPen(QColor(0x303644));
        p.drawText(214, 39 + row * 50, u"Amount %1 %"_s.arg((at - 360) / 2));
    }
}

void chart(QPainter &p, Random &random) {
    p.fillRect(0, 0, 640, 480, Qt::white);
    p.setFont(font(u"DejaVu Sans"_s, 11));
    for (int i = 0; i <= 10; ++i) {
        p.setPen(QPen(QColor(0xd4d8df), 1));
        p.drawLine(QPointF(50, 30.5 + i * 40), QPointF(620, 30.5 + i * 40));
        p.setPen(QColor(0x555b66));
        p.drawText(16, 35 + i * 40, QString::number(100 - i * 10));
        p.drawText(44 + i * 57, 450, QString::number(2010 + i));
        p.setBrush(QBrush(Accents[i % 5].lighter(150), i % 3 == 2 ? Qt::BDiagPattern : Qt::SolidPattern));
        const int height = 40 + random.bounded(150);
        p.drawRect(QRectF(52.5 + i * 57, 430.5 - height, 16, height));
    }
    p.setBrush(Qt::NoBrush);
    for (int series = 0; series < 5; ++series) {
        QPolygonF path;
        double y = 100 + series * 60;
        for (int x = 0; x <= 57; ++x, y += random.bounded(31) - 15)
            path << QPointF(50 + x * 10, std::clamp(y, 32.0, 428.0));
        p.setPen(QPen(Accents[series], 1 + 0.5 * series, series == 3 ? Qt::DashLine : Qt::SolidLine));
        p.drawPolyline(path);
    }
}

void pen(QPainter &p, Random &random) {
    p.fillRect(0, 0, 640, 480, QColor(0xf4efe2));
    p.setBrush(Qt::NoBrush);
    for (int i = 0; i < 60; ++i) {
        const auto at = [&random] { return QPointF(random.bounded(640), random.bounded(480)); };
        QPainterPath path(at());
        path.cubicTo(at(), at(), at());
        p.setPen(QPen(QColor(0x20242c), 0.6 + 0.08 * i * (i % 3), Qt::SolidLine, Qt::RoundCap));
        p.drawPath(path);
    }
}

void shades(QPainter &p, Random &random) {
    QLinearGradient sky(0, 0, 640, 480);
    sky.setColorAt(0, QColor(0x15306b));
    sky.setColorAt(1, QColor(0xf2b27a));
    p.fillRect(0, 0, 640, 480, sky);
    for (int i = 0; i < 24; ++i) {
        const QPointF centre(random.bounded(640), random.bounded(480));
        const double radius = 15 + random.bounded(60);
        QRadialGradient ball(centre - QPointF(radius, radius) / 3, radius * 1.3);
        ball.setColorAt(0, Qt::white);
        ball.setColorAt(1, Accents[i % 5].darker(130));
        p.setPen(i % 2 ? QPen(Qt::NoPen) : QPen(QColor(0x101018), 3));
        p.setBrush(ball);
        p.drawEllipse(centre, radius, radius);
    }
}

void patterns(QPainter &p, Random &) {
    p.fillRect(0, 0, 640, 480, Qt::white);
    p.setPen(Qt::NoPen);
    for (int field = 0; field < 4; ++field) {
        const int side = 4 + 4 * field;
        p.setBrush(field % 2 ? Accents[field] : QColor(Qt::black));
        for (int y = 0; y < 240 / side; ++y)
            for (int x = y % 2; x < 160 / side; x += 2)
                p.drawRect(field * 160 + x * side, y * side, side, side);
    }
    p.setBrush(Qt::black);
    for (int ray = 0; ray < 36; ++ray)
        p.drawPie(QRectF(40, 250, 220, 220), ray * 160, 80);
    for (int ring = 20; ring > 0; --ring) {
        p.setBrush(ring % 2 ? QColor(Qt::white) : Accents[1]);
        p.drawEllipse(QPointF(450, 360), ring * 5.5, ring * 5.5);
    }
}

} // namespace

std::vector<cv::Mat> drawings(cv::Size size) {
    std::vector<cv::Mat> found;
    for (const Draw draw : {prose, pen, chart, panel, shades, patterns}) {
        QImage image(size.width, size.height, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size.width / 640.0, size.height / 480.0);
        Random random(7);
        draw(painter, random);
        painter.end();
        cv::Mat bgr;
        cv::cvtColor(
            cv::Mat(image.height(), image.width(), CV_8UC4, image.bits(), std::size_t(image.bytesPerLine())),
            bgr, cv::COLOR_BGRA2BGR);
        found.push_back(bgr);
    }
    return found;
}
