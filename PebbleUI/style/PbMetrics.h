#pragma once

#include "PbThemed.h"
#include "PbToken.h"

// Sizes in device-independent pixels, and shares of one.
class PbMetrics : public PbThemed {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A group of PebbleStyle")
    Q_PROPERTY(int autoMarkWidth READ autoMarkWidth NOTIFY themeChanged FINAL)

    PB_TOKEN(int, smallRadius, 4)
    PB_TOKEN(int, mediumRadius, 6)
    PB_TOKEN(int, largeRadius, 8)
    PB_TOKEN(int, border, 1)
    PB_TOKEN(int, focusRing, 2)
    PB_TOKEN(int, focusRingGap, 2)

    PB_TOKEN(int, spacingTiny, 2)
    PB_TOKEN(int, spacingSmall, 4)
    PB_TOKEN(int, spacing, 8)
    PB_TOKEN(int, spacingLarge, 16)

    PB_TOKEN(int, icon, 16)
    PB_TOKEN(int, indicator, 14)
    PB_TOKEN(int, spinner, 10)
    PB_TOKEN(int, dotRegular, 6)
    PB_TOKEN(int, dotSmall, 4)

    PB_TOKEN(int, buttonHeight, 48)
    PB_TOKEN(int, buttonPadding, 16)
    PB_TOKEN(int, buttonHeightCompact, 28)
    PB_TOKEN(int, buttonPaddingCompact, 8)

    PB_TOKEN(int, fieldHeight, 28)
    PB_TOKEN(int, fieldPadding, 8)
    PB_TOKEN(int, fieldWidth, 120)

    PB_TOKEN(int, comboHeight, 32)
    PB_TOKEN(int, comboHeightCompact, 24)
    PB_TOKEN(int, comboWidth, 160)
    PB_TOKEN(int, comboRow, 28)
    PB_TOKEN(int, comboRuleRow, 9)
    PB_TOKEN(int, popupMargin, 6)
    PB_TOKEN(int, gridOption, 32)
    PB_TOKEN(int, gridGap, 2)

    PB_TOKEN(int, sliderHandle, 12)
    PB_TOKEN(int, sliderTrack, 4)
    PB_TOKEN(int, sliderWidth, 200)
    PB_TOKEN(int, autoMarkHeight, 8)
    PB_TOKEN(int, labeledSliderWidth, 218)
    PB_TOKEN(int, labeledSliderHeight, 36)
    PB_TOKEN(int, labeledSliderRow, 20)
    PB_TOKEN(int, labeledSliderField, 44)

    PB_TOKEN(qreal, switchAspect, 1.85)
    PB_TOKEN(int, scrollBar, 8)
    PB_TOKEN(int, noteWidth, 218)

    PB_TOKEN(int, tipWidth, 320)
    PB_TOKEN(int, tipMargin, 16)
    PB_TOKEN(int, tipSpacing, 10)
    PB_TOKEN(int, tipEdge, 10)

    PB_TOKEN(int, dialogWidth, 330)
    PB_TOKEN(int, dialogMinHeight, 200)
    PB_TOKEN(int, dialogScreenMargin, 32)
    PB_TOKEN(int, dialogFooter, 68)
    PB_TOKEN(int, dialogPadding, 16)
    PB_TOKEN(int, dialogTopMargin, 80)
    PB_TOKEN(int, dialogTopMarginMac, 48)
    PB_TOKEN(int, modalHeader, 48)

    PB_TOKEN(int, menuWidth, 200)
    PB_TOKEN(int, menuItem, 44)
    PB_TOKEN(int, menuSeparator, 9)
    PB_TOKEN(int, menuBar, 32)
    PB_TOKEN(int, pivotHeight, 8)
    PB_TOKEN(int, pivotWidth, 16)

    PB_TOKEN(int, windowHeader, 48)
    PB_TOKEN(int, windowButton, 48)
    PB_TOKEN(int, wordmarkHeight, 20)
    PB_TOKEN(int, nativeButtonsMargin, 76)

    PB_TOKEN(qreal, disabledOpacity, 0.6)
    PB_TOKEN(qreal, dotModifiedOpacity, 0.7)
    PB_TOKEN(qreal, dotDisabledOpacity, 0.5)
    PB_TOKEN(qreal, scrollBarMinimum, 0.1)

public:
    using PbThemed::PbThemed;

    // Wider in the light theme, where the mark has a border.
    int autoMarkWidth() const { return m_darkMode ? 1 : 3; }
};
