#include "workbench/window/Appearance.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QSettings>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>
#include <array>
#include <cmath>

namespace GleanerSvc::Workbench {

namespace {

constexpr double TwipsPerPixel = 15; // at 96 pixels an inch

// Of the user's settings.
constexpr const char* ThemeName = "theme";
constexpr const char* ZoomName = "zoom";
constexpr const char* DarkName = "dark";

QPalette PaletteOf(Theme eTheme) {
    if (eTheme == Theme::Light) {
        QPalette oLight(QColor(0xF0, 0xF0, 0xF0));
        oLight.setColor(QPalette::Base, Qt::white);
        oLight.setColor(QPalette::AlternateBase, QColor(0xF7, 0xF7, 0xF7));
        oLight.setColor(QPalette::Highlight, QColor(0x2B, 0x6C, 0xB0));
        oLight.setColor(QPalette::HighlightedText, Qt::white);
        oLight.setColor(QPalette::Link, QColor(0x1A, 0x5F, 0xB4));
        return oLight;
    }
    QPalette oDark(QColor(0x35, 0x36, 0x38));
    const QColor oText(0xE8, 0xE8, 0xE8);
    for (const auto eRole :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        oDark.setColor(eRole, oText);
    oDark.setColor(QPalette::Base, QColor(0x24, 0x25, 0x26));
    oDark.setColor(QPalette::AlternateBase, QColor(0x2C, 0x2D, 0x2F));
    oDark.setColor(QPalette::ToolTipBase, QColor(0x24, 0x25, 0x26));
    oDark.setColor(QPalette::PlaceholderText, QColor(0x9A, 0x9A, 0x9A));
    oDark.setColor(QPalette::Highlight, QColor(0x4A, 0x90, 0xD9));
    oDark.setColor(QPalette::HighlightedText, Qt::black);
    oDark.setColor(QPalette::Link, QColor(0x8A, 0xB8, 0xF0));
    for (const auto eRole : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        oDark.setColor(QPalette::Disabled, eRole, QColor(0x8C, 0x8C, 0x8C));
    return oDark;
}

// What a control is drawn from besides its text: it grows with the text.
constexpr std::array ZoomedMetrics = {
    QStyle::PM_ButtonMargin,          QStyle::PM_CheckBoxLabelSpacing,    QStyle::PM_HeaderMargin,
    QStyle::PM_HeaderMarkSize,        QStyle::PM_LayoutBottomMargin,      QStyle::PM_LayoutHorizontalSpacing,
    QStyle::PM_LayoutLeftMargin,      QStyle::PM_LayoutRightMargin,       QStyle::PM_LayoutTopMargin,
    QStyle::PM_LayoutVerticalSpacing, QStyle::PM_MenuBarHMargin,          QStyle::PM_MenuBarItemSpacing,
    QStyle::PM_MessageBoxIconSize,    QStyle::PM_RadioButtonLabelSpacing, QStyle::PM_ScrollBarExtent,
    QStyle::PM_ScrollBarSliderMin,    QStyle::PM_SmallIconSize,           QStyle::PM_SplitterWidth,
    QStyle::PM_TabBarTabHSpace,       QStyle::PM_TabBarTabVSpace};

constexpr std::array IndicatorMetrics = {QStyle::PM_ExclusiveIndicatorHeight,
                                         QStyle::PM_ExclusiveIndicatorWidth, QStyle::PM_IndicatorHeight,
                                         QStyle::PM_IndicatorWidth};

// A box that is not ticked has an edge that is seen on a dark ground too.
class ZoomedStyle final : public QProxyStyle {
  public:
    explicit ZoomedStyle(double dZoom) : QProxyStyle(QStyleFactory::create("Fusion")), m_dZoom(dZoom) {}

    int pixelMetric(PixelMetric eMetric, const QStyleOption* pOption, const QWidget* pWidget) const override {
        if (std::ranges::find(IndicatorMetrics, eMetric) != IndicatorMetrics.end()) return Zoomed(Indicator);
        const int nPixels = QProxyStyle::pixelMetric(eMetric, pOption, pWidget);
        const bool bZoomed = std::ranges::find(ZoomedMetrics, eMetric) != ZoomedMetrics.end();
        return bZoomed && nPixels > 0 ? Zoomed(nPixels) : nPixels;
    }

    QSize sizeFromContents(ContentsType eType, const QStyleOption* pOption, const QSize& oContents,
                           const QWidget* pWidget) const override {
        const QSize oSize = QProxyStyle::sizeFromContents(eType, pOption, oContents, pWidget);
        const auto* pButton = qstyleoption_cast<const QStyleOptionButton*>(pOption);
        if (eType != CT_PushButton || !pButton || pButton->text.isEmpty()) return oSize;
        return oSize.expandedTo({Zoomed(NarrowestButton), 0});
    }

    void drawPrimitive(PrimitiveElement eElement, const QStyleOption* pOption, QPainter* pPainter,
                       const QWidget* pWidget) const override {
        QProxyStyle::drawPrimitive(eElement, pOption, pPainter, pWidget);
        if (eElement != PE_IndicatorCheckBox && eElement != PE_IndicatorRadioButton) return;
        const QRectF oEdge = QRectF(pOption->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        pPainter->save();
        pPainter->setRenderHint(QPainter::Antialiasing);
        pPainter->setPen(QColor(0x8C, 0x8C, 0x8C));
        pPainter->setBrush(Qt::NoBrush);
        if (eElement == PE_IndicatorCheckBox)
            pPainter->drawRect(oEdge);
        else
            pPainter->drawEllipse(oEdge);
        pPainter->restore();
    }

  private:
    static constexpr int Indicator = 12; // it fits the lowest box of the design
    static constexpr int NarrowestButton = 80;

    int Zoomed(int nPixels) const { return std::max(1, static_cast<int>(std::lround(nPixels * m_dZoom))); }

    double m_dZoom;
};

Theme SystemTheme() {
    const QPalette oPalette = QApplication::palette();
    return oPalette.color(QPalette::WindowText).lightness() > oPalette.color(QPalette::Window).lightness()
               ? Theme::Dark
               : Theme::Light;
}

} // namespace

Appearance::Appearance(bool bRemembers) : m_bRemembers(bRemembers) {
    if (m_bRemembers) {
        const QSettings oSettings;
        const QString sTheme = oSettings.value(ThemeName).toString();
        const bool bDark = sTheme.isEmpty() ? SystemTheme() == Theme::Dark : sTheme == DarkName;
        m_eTheme = bDark ? Theme::Dark : Theme::Light;
        m_dZoom = std::clamp(oSettings.value(ZoomName, 1.0).toDouble(), LeastZoom, MostZoom);
    }
    Dress();
    QApplication::setPalette(PaletteOf(m_eTheme));
}

// The same shapes, light or dark, on every desktop. Boxes and menus have the application's font.
void Appearance::Dress() const {
    QApplication::setStyle(new ZoomedStyle(m_dZoom));
    QApplication::setFont(ScreenFont({"", 9, false}));
}

void Appearance::Zoom(double dZoom) {
    const double dNew = std::clamp(dZoom, LeastZoom, MostZoom);
    if (dNew == m_dZoom) return;
    OnZooming.Raise();
    m_dZoom = dNew;
    Remember(ZoomName, m_dZoom);
    Dress();
    OnZoomed.Raise();
}

void Appearance::ZoomBy(int nSteps) {
    constexpr double Step = 0.25;
    Zoom(m_dZoom + nSteps * Step);
}

void Appearance::ShownTheme(Theme eTheme) {
    if (eTheme == m_eTheme) return;
    m_eTheme = eTheme;
    Remember(ThemeName, eTheme == Theme::Dark ? DarkName : "light");
    QApplication::setPalette(PaletteOf(eTheme));
}

void Appearance::Remember(const char* szName, const QVariant& vValue) const {
    if (m_bRemembers) QSettings().setValue(szName, vValue);
}

int Appearance::Pixels(std::int32_t lTwips) const {
    return static_cast<int>(std::lround(lTwips / TwipsPerPixel * m_dZoom));
}

// Edges are rounded and not widths, so that neighbours in the design meet on the screen.
QRect Appearance::Pixels(const Bounds& oPlace) const {
    const QPoint oTopLeft(Pixels(oPlace.lLeft), Pixels(oPlace.lTop));
    const QPoint oEnd(Pixels(oPlace.lLeft + oPlace.lWidth), Pixels(oPlace.lTop + oPlace.lHeight));
    return {oTopLeft, QSize(oEnd.x() - oTopLeft.x(), oEnd.y() - oTopLeft.y())};
}

QFont Appearance::ScreenFont(const GleanerSvc::Font& oFont) const {
    constexpr double PixelsPerPoint = 96.0 / 72;
    QFont oShown = QApplication::font();
    oShown.setPixelSize(std::max(1, static_cast<int>(std::lround(oFont.dPoints * PixelsPerPoint * m_dZoom))));
    oShown.setBold(oFont.bBold);
    return oShown;
}

} // namespace GleanerSvc::Workbench
