#include "workbench/window/Appearance.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QSettings>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>
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

// A box that is not ticked has an edge that is seen on a dark ground too.
class EdgedStyle final : public QProxyStyle {
  public:
    EdgedStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

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
};

Theme SystemTheme() {
    const QPalette oPalette = QApplication::palette();
    return oPalette.color(QPalette::WindowText).lightness() > oPalette.color(QPalette::Window).lightness()
               ? Theme::Dark
               : Theme::Light;
}

} // namespace

Appearance::Appearance(bool bRemembers) : m_bRemembers(bRemembers) {
    QApplication::setStyle(new EdgedStyle); // the same shapes, light or dark, on every desktop
    if (m_bRemembers) {
        const QSettings oSettings;
        const QString sTheme = oSettings.value(ThemeName).toString();
        const bool bDark = sTheme.isEmpty() ? SystemTheme() == Theme::Dark : sTheme == DarkName;
        m_eTheme = bDark ? Theme::Dark : Theme::Light;
        m_dZoom = std::clamp(oSettings.value(ZoomName, 1.0).toDouble(), LeastZoom, MostZoom);
    }
    QApplication::setPalette(PaletteOf(m_eTheme));
}

void Appearance::Zoom(double dZoom) {
    const double dNew = std::clamp(dZoom, LeastZoom, MostZoom);
    if (dNew == m_dZoom) return;
    m_dZoom = dNew;
    Remember(ZoomName, m_dZoom);
    OnZoomed.Raise();
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
