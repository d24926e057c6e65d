#pragma once

#include "PbThemed.h"

#include <QColor>

// A role with its shade in the dark and in the light theme.
#define PB_COLOR(name, dark, light)                                                                          \
    Q_PROPERTY(QColor name READ name NOTIFY themeChanged FINAL)                                              \
public:                                                                                                      \
    QColor name() const {                                                                                    \
        return QColor::fromRgba(m_darkMode ? dark : light);                                                  \
    }

// The colours by role. A grey's name says how far it is from the page, not how light it is: in the light
// theme the greys are reversed. What begins with an underscore is for the roles only.
class PbColors : public PbThemed {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A group of PebbleStyle")

    static constexpr QRgb Black = 0xFF000000, Gray10 = 0xFF171717, Gray9 = 0xFF212121, Gray8 = 0xFF2B2B2B,
                          Gray7 = 0xFF353535, Gray6 = 0xFF545454, Gray5 = 0xFF7C7C7C, Gray4 = 0xFF979797,
                          Gray3 = 0xFFB0B0B0, Gray2 = 0xFFD0D0D0, Gray1 = 0xFFDDDDDD, Gray0 = 0xFFF2F2F2,
                          White = 0xFFFFFFFF;
    static constexpr QRgb Green = 0xFFA6FF00, Blue = 0xFF4198FF, Red = 0xFFFF2156, Yellow = 0xFFFFCE21,
                          PaleYellow = 0xFFF5E194;

    PB_COLOR(_black, Black, Black)
    PB_COLOR(_gray10, Gray10, Gray10)
    PB_COLOR(_gray9, Gray9, Gray9)
    PB_COLOR(_gray8, Gray8, Gray8)
    PB_COLOR(_gray7, Gray7, Gray7)
    PB_COLOR(_gray6, Gray6, Gray6)
    PB_COLOR(_gray5, Gray5, Gray5)
    PB_COLOR(_gray4, Gray4, Gray4)
    PB_COLOR(_gray3, Gray3, Gray3)
    PB_COLOR(_gray2, Gray2, Gray2)
    PB_COLOR(_gray1, Gray1, Gray1)
    PB_COLOR(_gray0, Gray0, Gray0)
    PB_COLOR(_white, White, White)

    PB_COLOR(white, White, Black)
    PB_COLOR(almostWhite, Gray0, Gray10)
    PB_COLOR(lightestGray, Gray2, Gray9)
    PB_COLOR(lighterGray, Gray3, Gray8)
    PB_COLOR(lightGray, Gray4, Gray7)
    PB_COLOR(gray, Gray6, Gray5)
    PB_COLOR(darkGray, Gray7, Gray2)
    PB_COLOR(darkerGray, Gray8, Gray1)
    PB_COLOR(darkestGray, Gray9, Gray0)
    PB_COLOR(almostBlack, Gray10, White)
    PB_COLOR(black, Black, White)
    PB_COLOR(alwaysLight, Gray0, White)
    PB_COLOR(alwaysDark, Gray10, Gray10)

    PB_COLOR(pageBkg, Gray10, Gray2)
    PB_COLOR(panelBkg, Gray9, White)
    PB_COLOR(noteBkg, Gray8, PaleYellow)

    PB_COLOR(textLight, Gray0, Gray8)
    PB_COLOR(textHoverLight, White, Black)
    PB_COLOR(textdark, Gray9, Gray1)
    PB_COLOR(textHoverDark, Black, White)
    PB_COLOR(textDisabled, Gray6, Gray4)
    PB_COLOR(textSecondary, Gray4, Gray5)
    // What is in a field and no value: placeholders, labels, units.
    PB_COLOR(textQuiet, Gray4, Gray6)
    PB_COLOR(textWarning, Yellow, Gray8)
    PB_COLOR(textError, Red, Gray8)
    // A blue word among others: primeBlue falls short of the contrast on a light page.
    PB_COLOR(textBlue, Blue, 0xFF084BB0)
    PB_COLOR(textAlwaysLight, Gray0, Gray0)
    PB_COLOR(textAlwaysDark, Gray8, Gray8)

    PB_COLOR(primeGreen, Green, Gray10)
    PB_COLOR(title, Green, Gray10)
    PB_COLOR(primeBlue, Blue, Blue)
    PB_COLOR(primeBlueShade6, 0xFF0E7CFF, 0xFF0E7CFF)
    PB_COLOR(primeRed, Red, Red)
    PB_COLOR(darkRed, 0xFFB10E35, 0xFFB10E35)
    PB_COLOR(darkYellow, 0xFFF5A50A, 0xFFF5A50A)
    PB_COLOR(warningYellow, Yellow, Yellow)
    PB_COLOR(translucentYellow, PaleYellow, PaleYellow)
    PB_COLOR(alwaysPrimeGreen, Green, Green)
    PB_COLOR(brandingPurpleSwatch, 0xFF914EFF, 0xFF914EFF)
    PB_COLOR(cheatPurpleSwatch, 0xFFB98EFE, 0xFFB98EFE)

    // The ring around what has the keyboard: no blue of ours stands out from a light page.
    PB_COLOR(focusRing, Blue, Gray10)
    PB_COLOR(clear, 0, 0)
    PB_COLOR(tipBorder, Gray8, Gray8)
    PB_COLOR(dialogDim, 0x99000000, 0x66171717)

public:
    using PbThemed::PbThemed;
};

#undef PB_COLOR
