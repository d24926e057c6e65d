#include "app/studio/InterfaceFonts.h"

#include <QApplication>
#include <QDebug>
#include <QFontDatabase>
#include <QPalette>

using namespace Qt::StringLiterals;

void setInterfaceFont() {
    // Text looks larger on these systems than on macOS by this factor.
    constexpr int pointSize = qRound(12 * 0.7);
    const int regular = QFontDatabase::addApplicationFont(u":/fonts/Inter-Regular.ttf"_s);
    for (const char *weight : {"Light", "Medium", "SemiBold", "Bold"})
        QFontDatabase::addApplicationFont(u":/fonts/Inter-%1.ttf"_s.arg(QLatin1String(weight)));

    QFont font;
    if (regular >= 0) {
        qInfo() << "Loaded Inter font from resources";
        font = QFont(QFontDatabase::applicationFontFamilies(regular).value(0));
    } else {
        qCritical() << "Could not load Inter font from resources. Default font may not look correct. ID:"
                    << regular;
        font = QFont(u"Inter"_s);
        font.setStyleHint(QFont::SansSerif);
    }
    font.setPointSize(pointSize);
    QApplication::setFont(font);
}

void setInterfacePalette() {
    QPalette palette;
    palette.setBrush(QPalette::All, QPalette::Window, QColor(18, 20, 25));
    QApplication::setPalette(palette);
}
