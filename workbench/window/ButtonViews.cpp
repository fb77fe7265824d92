// Buttons, option buttons and check boxes.
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include <type_traits>

#include "workbench/window/ControlViews.h"
#include "workbench/window/FittingFont.h"

namespace GleanerSvc::Workbench {

namespace {

// Model and widget go by one caption and one click. What a click does to the widget is undone by the mirror:
// the model decides.
template<class Kind, class Shown>
class ButtonView final : public ControlView {
  public:
    ButtonView(Kind& oModel, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oModel, new Shown(pParent), oContext), m_oModel(oModel),
          m_oShown(static_cast<Shown&>(Widget())) {
        m_oShown.setAutoExclusive(false);
        QObject::connect(&m_oShown, &QAbstractButton::clicked, &m_oShown, [this] {
            const QPointer<QWidget> pAlive(&m_oShown);
            Gesture([this] { m_oModel.Press(); });
            if (pAlive) Mirror(Property::Value);
        });
    }

  protected:
    std::vector<Property> OwnProperties() const override { return {Property::Caption, Property::Value}; }
    void Mirror(Property eProperty) override {
        if (eProperty == Property::Caption) m_oShown.setText(QString::fromStdString(m_oModel.Caption()));
        if (eProperty == Property::Caption || eProperty == Property::Font || eProperty == Property::Bounds)
            FitCaption();
        if constexpr (requires { m_oModel.Value(); }) {
            if (eProperty == Property::Value) ShowValue();
        }
    }
    // A tool tip tells more than ">>".
    QString OwnName() const override {
        return QString::fromStdString(m_oModel.ToolTip().empty() ? m_oModel.Caption() : m_oModel.ToolTip());
    }

  private:
    void ShowValue() requires requires(const Kind& o) { o.Value(); }
    {
        m_oShown.setChecked(m_oModel.Value() != decltype(m_oModel.Value()){});
        if constexpr (std::is_same_v<Kind, CheckBox>) {
            const bool bGrayed = m_oModel.Value() == CheckState::Grayed;
            m_oShown.setTristate(bGrayed);
            if (bGrayed) m_oShown.setCheckState(Qt::PartiallyChecked);
        }
    }

    // A push button is drawn with as little room around its text as need be; the others' marks need theirs.
    void FitCaption() {
        constexpr int Edges = 12;
        const QFont oFont = Context().oAppearance.ScreenFont(m_oModel.Font());
        m_oShown.setFont(oFont);
        const QString sText = m_oShown.text().remove('&'); // of the mnemonic
        const int nText = m_oShown.fontMetrics().size(Qt::TextSingleLine, sText).width();
        const int nAround = std::is_same_v<Shown, QPushButton> ? Edges : m_oShown.sizeHint().width() - nText;
        m_oShown.setFont(FittingFont(oFont, sText, m_oShown.width() - nAround));
    }

    Kind& m_oModel;
    Shown& m_oShown;
};

} // namespace

MadeView MakeView(Button& oButton, QWidget* pParent, const ViewContext& oContext) {
    auto oView = std::make_unique<ButtonView<Button, QPushButton>>(oButton, pParent, oContext);
    static_cast<QPushButton&>(oView->Widget()).setAutoDefault(false);
    return oView;
}

MadeView MakeView(OptionButton& oButton, QWidget* pParent, const ViewContext& oContext) {
    return std::make_unique<ButtonView<OptionButton, QRadioButton>>(oButton, pParent, oContext);
}

MadeView MakeView(CheckBox& oBox, QWidget* pParent, const ViewContext& oContext) {
    auto oView = std::make_unique<ButtonView<CheckBox, QCheckBox>>(oBox, pParent, oContext);
    oView->Widget().setAutoFillBackground(true); // it may stand on the edge of a frame
    return oView;
}

} // namespace GleanerSvc::Workbench
