#include "PbFonts.h"

#include "PebbleStyle.h"

#include <QFontDatabase>

#include <array>

using namespace Qt::StringLiterals;

PbTextRole::PbTextRole(qreal size, QFont::Weight weight, qreal lineHeight, QObject *parent)
    : QObject(parent)
    , m_size(size)
    , m_lineHeight(lineHeight)
    , m_font(PbFonts::inter()) {
    m_font.setPointSizeF(PebbleStyle::points(size));
    m_font.setWeight(weight);
}

PbFonts::PbFonts(QObject *parent)
    : QObject(parent)
    , m_heading(new PbTextRole(16, QFont::DemiBold, 17, this))
    , m_cta(new PbTextRole(14, QFont::DemiBold, 17, this))
    , m_title(new PbTextRole(12, QFont::Medium, 15, this))
    , m_body(new PbTextRole(12, QFont::Normal, 15, this))
    , m_footnote(new PbTextRole(12, QFont::Normal, 15, this))
    , m_label(new PbTextRole(10, QFont::Normal, 12, this)) {
    m_footnote->setItalic();
    m_label->setLetterSpacing(0.25);
}

PbTextRole *PbFonts::ofType(int type) const {
    const std::array roles = {m_heading, m_cta, m_title, m_body, m_footnote, m_label};
    return type >= 0 && type < int(roles.size()) ? roles[size_t(type)] : m_body;
}

const QString &PbFonts::inter() {
    static const QString family = [] {
        QStringList families;
        for (const char *weight : {"Regular", "Medium", "SemiBold"}) {
            const QString file = u":/PebbleUI/PebbleUI/fonts/Inter-%1.otf"_s.arg(QLatin1StringView(weight));
            families += QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFont(file));
        }
        return families.isEmpty() ? u"Inter"_s : families.constFirst();
    }();
    return family;
}
