// Picture boxes, images and progress bars: what is drawn.
#include <QPainter>
#include <QProgressBar>

#include <cmath>

#include "workbench/pictures/Artwork.h"
#include "workbench/window/ControlViews.h"
#include "workbench/window/HotZone.h"
#include "workbench/window/PlatePart.h"
#include "workbench/window/SpokenWidget.h"

namespace GleanerSvc::Workbench {

namespace {

void Paint(QWidget& oWidget, const Picture& oPicture) {
    QPainter oPainter(&oWidget);
    PaintArtwork(oPainter, oWidget.rect(), oPicture.sName);
}

class PictureZone final : public HotZone {
  public:
    PictureZone(const PictureBox& oBox, QWidget* pParent) : HotZone(pParent), m_oBox(oBox) {}

    void AddState(QAccessible::State& oState) const override {
        const auto bPicked = IsWellPicked(m_oBox);
        oState.checkable = bPicked.has_value();
        oState.checked = bPicked.value_or(false);
    }

  protected:
    void paintEvent(QPaintEvent* pEvent) override {
        Paint(*this, m_oBox.Picture());
        HotZone::paintEvent(pEvent);
    }

  private:
    const PictureBox& m_oBox;
};

class PictureBoxView final : public ControlView {
  public:
    PictureBoxView(PictureBox& oBox, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oBox, new PictureZone(oBox, pParent), oContext), m_oBox(oBox) {
        static_cast<PictureZone&>(Widget()).OnClick = [this](std::int16_t iButton) {
            Gesture([this, iButton] { m_oBox.ClickIt(iButton); });
        };
    }

  protected:
    void Mirror(Property eProperty) override {
        if (eProperty != Property::Picture) return;
        Widget().update();
        QAccessible::State oChanged;
        oChanged.checked = true;
        QAccessibleStateChangeEvent oEvent(&Widget(), oChanged);
        QAccessible::updateAccessibility(&oEvent);
    }
    QString OwnName() const override { return WellName(m_oBox); }

  private:
    PictureBox& m_oBox;
};

// Decoration: what it shows is said by the labels and controls around it.
class ImageWidget final : public SpokenWidget {
  public:
    ImageWidget(const Image& oImage, QWidget* pParent)
        : SpokenWidget(pParent, QAccessible::Graphic), m_oImage(oImage) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    void AddState(QAccessible::State& oState) const override { oState.invisible = true; }

  protected:
    void paintEvent(QPaintEvent* /*pEvent*/) override { Paint(*this, m_oImage.Picture()); }

  private:
    const Image& m_oImage;
};

class ImageView final : public ControlView {
  public:
    ImageView(Image& oImage, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oImage, new ImageWidget(oImage, pParent), oContext) {}

  protected:
    bool IsSpoken() const override { return false; }
};

class ProgressView final : public ControlView {
  public:
    ProgressView(ProgressBar& oBar, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oBar, new QProgressBar(pParent), oContext), m_oBar(oBar),
          m_oShown(static_cast<QProgressBar&>(Widget())) {}

  protected:
    std::vector<Property> OwnProperties() const override { return {Property::Limits, Property::Value}; }
    void Mirror(Property eProperty) override {
        if (eProperty != Property::Limits && eProperty != Property::Value) return;
        constexpr int Steps = 1000; // of the bar, whatever the model counts
        const float fShare = m_oBar.Max() > 0 ? m_oBar.Value() / m_oBar.Max() : 0;
        m_oShown.setRange(0, Steps);
        m_oShown.setValue(static_cast<int>(std::lround(fShare * Steps)));
    }

  private:
    ProgressBar& m_oBar;
    QProgressBar& m_oShown;
};

} // namespace

MadeView MakeView(PictureBox& oBox, QWidget* pParent, const ViewContext& oContext) {
    return std::make_unique<PictureBoxView>(oBox, pParent, oContext);
}

MadeView MakeView(Image& oImage, QWidget* pParent, const ViewContext& oContext) {
    return std::make_unique<ImageView>(oImage, pParent, oContext);
}

MadeView MakeView(ProgressBar& oBar, QWidget* pParent, const ViewContext& oContext) {
    return std::make_unique<ProgressView>(oBar, pParent, oContext);
}

} // namespace GleanerSvc::Workbench
