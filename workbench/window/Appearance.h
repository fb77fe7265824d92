// How large and in which colours the windows of the workbench are shown: one choice for all of them, kept in
// the user's settings.
#pragma once

#include <QFont>
#include <QKeySequence>
#include <QList>
#include <QRect>
#include <QVariant>

#include "pagebind/Event.h"
#include "pagebind/controls/Control.h"

namespace GleanerSvc::Workbench {

enum class Theme { Light, Dark };

class Appearance {
  public:
    static constexpr double LeastZoom = 0.5;
    static constexpr double MostZoom = 3;

    // As the user left it, with the system's colours at first; or, where nothing is to be remembered, light
    // and of the design's size.
    explicit Appearance(bool bRemembers = true);
    Appearance(const Appearance&) = delete;
    Appearance& operator=(const Appearance&) = delete;
    ~Appearance() = default;

    // 1 is the design's size on a screen of 96 pixels an inch; a denser screen scales by itself. Beyond the
    // limits the nearest is taken.
    double Zoom() const { return m_dZoom; }
    void Zoom(double dZoom);
    void ZoomBy(int nSteps);
    Theme ShownTheme() const { return m_eTheme; }
    void ShownTheme(Theme eTheme); // recolours the application

    Event<> OnZooming; // all is of the old size still
    Event<> OnZoomed;

    int Pixels(std::int32_t lTwips) const;
    QRect Pixels(const Bounds& oPlace) const;
    QFont ScreenFont(const GleanerSvc::Font& oFont) const; // the application's, in the size of the control's

  private:
    void Dress() const;
    void Remember(const char* szName, const QVariant& vValue) const;

    bool m_bRemembers;
    double m_dZoom = 1;
    Theme m_eTheme = Theme::Light;
};

// With and without Shift.
inline QList<QKeySequence> ZoomInKeys() { return {QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")}; }

} // namespace GleanerSvc::Workbench
