// A widget that the project draws itself, and what a screen reader is to take it for.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace GleanerSvc::Workbench {

class SpokenWidget : public QWidget {
  public:
    SpokenWidget(QWidget* pParent, QAccessible::Role eRole);

    QAccessible::Role SpokenRole() const { return m_eRole; }
    // Adds to what any widget tells of its state.
    virtual void AddState(QAccessible::State& /*oState*/) const {}
    // What can be done with it, by the names of QAccessibleActionInterface.
    virtual QStringList SpokenActions() const { return {}; }
    virtual void DoSpoken(const QString& /*sAction*/) {}

  private:
    QAccessible::Role m_eRole;
};

} // namespace GleanerSvc::Workbench
