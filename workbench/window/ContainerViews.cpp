// Frames, tab controls and plain containers. Their children are drawn by views of their own, below their
// widgets.
#include <QPainter>
#include <QTabBar>

#include <algorithm>

#include "workbench/window/ControlViews.h"
#include "workbench/window/SpokenWidget.h"

namespace GleanerSvc::Workbench {

namespace {

// The caption stands on the upper edge, as in the design: what is inside counts its place from the very top.
class FrameWidget final : public SpokenWidget {
  public:
    explicit FrameWidget(QWidget* pParent) : SpokenWidget(pParent, QAccessible::Grouping) {}

    void Caption(const QString& sCaption) {
        m_sCaption = sCaption;
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*pEvent*/) override {
        QPainter oPainter(this);
        const QFontMetrics oMetrics(font());
        const int nMargin = oMetrics.averageCharWidth();
        oPainter.setPen(palette().color(QPalette::Mid));
        oPainter.drawRect(rect().adjusted(0, oMetrics.height() / 2, -1, -1));
        if (m_sCaption.isEmpty()) return;
        const QRect oCaption(nMargin, 0, oMetrics.horizontalAdvance(m_sCaption) + nMargin, oMetrics.height());
        oPainter.fillRect(oCaption, palette().color(QPalette::Window));
        oPainter.setPen(
            palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
        oPainter.drawText(oCaption, Qt::AlignCenter, m_sCaption);
    }

  private:
    QString m_sCaption;
};

class FrameView final : public ControlView {
  public:
    FrameView(Frame& oFrame, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oFrame, new FrameWidget(pParent), oContext), m_oFrame(oFrame),
          m_oShown(static_cast<FrameWidget&>(Widget())) {}

  protected:
    std::vector<Property> OwnProperties() const override { return {Property::Caption}; }
    void Mirror(Property eProperty) override {
        if (eProperty == Property::Caption) m_oShown.Caption(QString::fromStdString(m_oFrame.Caption()));
    }
    bool IsSpoken() const override { return false; } // without a caption
    QString OwnName() const override { return QString::fromStdString(m_oFrame.Caption()); }

  private:
    Frame& m_oFrame;
    FrameWidget& m_oShown;
};

// The tabs along the top; which child stands on which tab the model knows.
class TabView final : public ControlView {
  public:
    TabView(TabControl& oTabs, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oTabs, new QWidget(pParent), oContext), m_oTabs(oTabs),
          m_oBar(*new QTabBar(&Widget())) {
        for (std::int16_t iTab = 0; iTab < oTabs.Tabs(); ++iTab)
            m_oBar.addTab(QString::fromStdString(oTabs.TabCaption(iTab)));
        m_oBar.setExpanding(false);
        m_oBar.setDrawBase(true);
        QObject::connect(&m_oBar, &QTabBar::currentChanged, &m_oBar, [this](int nTab) {
            if (m_bMirroring || nTab < 0 || nTab == m_oTabs.Tab()) return;
            const QPointer<QWidget> pAlive(&m_oBar);
            Gesture([this, nTab] { m_oTabs.ChooseTab(static_cast<std::int16_t>(nTab)); });
            if (pAlive) Mirror(Property::FrontTab); // the model may have refused
        });
    }

  protected:
    std::vector<Property> OwnProperties() const override {
        return {Property::TabEnabled, Property::FrontTab};
    }
    void Mirror(Property eProperty) override {
        if (eProperty == Property::Bounds || eProperty == Property::Font) PlaceBar();
        if (eProperty == Property::FrontTab || eProperty == Property::TabEnabled) ShowTabs();
    }
    bool IsSpoken() const override { return false; } // its tabs are

  private:
    // The bar leaves a tab that is disabled; the model need not.
    void ShowTabs() {
        m_bMirroring = true;
        for (std::int16_t iTab = 0; iTab < m_oTabs.Tabs(); ++iTab)
            m_oBar.setTabEnabled(iTab, m_oTabs.TabEnabled(iTab));
        m_oBar.setCurrentIndex(m_oTabs.Tab());
        m_bMirroring = false;
    }
    void PlaceBar() {
        constexpr std::int32_t BarHeight = 420; // twips; a design's tabs take as much at most
        m_oBar.setGeometry(0, 0, Widget().width(), std::min(Pixels(BarHeight), m_oBar.sizeHint().height()));
    }

    TabControl& m_oTabs;
    QTabBar& m_oBar;
    bool m_bMirroring = false;
};

class PlainView final : public ControlView {
  public:
    PlainView(Container& oContainer, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oContainer, new QWidget(pParent), oContext) {}

  protected:
    bool IsSpoken() const override { return false; }
};

} // namespace

MadeView MakeView(Frame& oFrame, QWidget* pParent, const ViewContext& oContext) {
    return std::make_unique<FrameView>(oFrame, pParent, oContext);
}

MadeView MakeView(TabControl& oTabs, QWidget* pParent, const ViewContext& oContext) {
    return std::make_unique<TabView>(oTabs, pParent, oContext);
}

MadeView MakeView(Container& oContainer, QWidget* pParent, const ViewContext& oContext) {
    return std::make_unique<PlainView>(oContainer, pParent, oContext);
}

} // namespace GleanerSvc::Workbench
