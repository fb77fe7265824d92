#include "workbench/window/SpokenWidget.h"

#include <QAccessibleWidget>

namespace GleanerSvc::Workbench {

namespace {

class SpokenInterface final : public QAccessibleWidget {
  public:
    explicit SpokenInterface(SpokenWidget& oWidget)
        : QAccessibleWidget(&oWidget, oWidget.SpokenRole()), m_oWidget(oWidget) {}

    QAccessible::State state() const override {
        QAccessible::State oState = QAccessibleWidget::state();
        m_oWidget.AddState(oState);
        return oState;
    }
    QStringList actionNames() const override {
        return m_oWidget.SpokenActions() + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& sAction) override {
        if (m_oWidget.SpokenActions().contains(sAction)) return m_oWidget.DoSpoken(sAction);
        QAccessibleWidget::doAction(sAction);
    }

  private:
    SpokenWidget& m_oWidget;
};

QAccessibleInterface* MakeSpokenInterface(const QString& /*sClass*/, QObject* pObject) {
    auto* const pWidget = dynamic_cast<SpokenWidget*>(pObject);
    return pWidget ? new SpokenInterface(*pWidget) : nullptr;
}

} // namespace

SpokenWidget::SpokenWidget(QWidget* pParent, QAccessible::Role eRole) : QWidget(pParent), m_eRole(eRole) {
    QAccessible::installFactory(MakeSpokenInterface); // counts once
}

} // namespace GleanerSvc::Workbench
