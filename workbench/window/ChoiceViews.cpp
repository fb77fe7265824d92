// Drop-down lists and date pickers.
#include <QComboBox>
#include <QDateEdit>

#include <algorithm>

#include "workbench/window/ControlViews.h"

namespace GleanerSvc::Workbench {

namespace {

class DropDownView final : public ControlView {
  public:
    DropDownView(DropDownList& oList, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oList, new QComboBox(pParent), oContext), m_oList(oList),
          m_oShown(static_cast<QComboBox&>(Widget())) {
        m_oShown.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        QObject::connect(&m_oShown, &QComboBox::activated, &m_oShown, [this](int nPlace) {
            const QPointer<QWidget> pAlive(&m_oShown);
            Gesture([this, nPlace] { m_oList.Choose(nPlace); });
            if (pAlive) Mirror(Property::Choice);
        });
    }

  protected:
    std::vector<Property> OwnProperties() const override { return {Property::Items, Property::Choice}; }
    void Mirror(Property eProperty) override {
        if (eProperty == Property::Items) ShowItems();
        if (eProperty == Property::Items || eProperty == Property::Choice) {
            m_oShown.setCurrentIndex(m_oList.ListIndex());
            m_oShown.setToolTip(QString::fromStdString(m_oList.Text())); // a long name is cut in the box
        }
    }

  private:
    // Items come one by one at the end; a list that was cleared is shorter.
    void ShowItems() {
        if (m_oShown.count() > m_oList.ListCount()) m_oShown.clear();
        for (int nItem = m_oShown.count(); nItem < m_oList.ListCount(); ++nItem)
            m_oShown.addItem(QString::fromStdString(m_oList.List(nItem)));
    }

    DropDownList& m_oList;
    QComboBox& m_oShown;
};

QDate ToQDate(Date dtValue) {
    const CivilTime oTime = dtValue.Civil();
    return {oTime.lYear, oTime.lMonth, oTime.lDay};
}

Date ToDate(const QDate& oDay) { return Date::Of({oDay.year(), oDay.month(), oDay.day(), 0, 0, 0}); }

class DateView final : public ControlView {
  public:
    DateView(DatePicker& oPicker, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oPicker, new QDateEdit(pParent), oContext), m_oPicker(oPicker),
          m_oShown(static_cast<QDateEdit&>(Widget())) {
        m_oShown.setCalendarPopup(true);
        m_oShown.setDisplayFormat("yyyy-MM-dd");
        m_oShown.setDateRange(ToQDate(oPicker.MinDate()), ToQDate(oPicker.MaxDate()));
        QObject::connect(&m_oShown, &QDateEdit::dateChanged, &m_oShown, [this](const QDate& oDay) {
            if (m_bMirroring) return;
            const QPointer<QWidget> pAlive(&m_oShown);
            Gesture([this, oDay] { m_oPicker.Pick(ToDate(oDay)); });
            if (pAlive) Mirror(Property::Value);
        });
    }

  protected:
    std::vector<Property> OwnProperties() const override { return {Property::Value}; }
    void Mirror(Property eProperty) override {
        if (eProperty == Property::Font || eProperty == Property::Bounds) FitDay();
        if (eProperty != Property::Value) return;
        m_bMirroring = true;
        m_oShown.setDate(ToQDate(m_oPicker.Value()));
        m_bMirroring = false;
    }

  private:
    // The day beside the arrow, which takes its room from a narrow box.
    void FitDay() {
        QFont oFont = Context().oAppearance.ScreenFont(m_oPicker.Font());
        const int nDay = QFontMetrics(oFont).horizontalAdvance("2026-00-00");
        const int nRoom = m_oShown.width() - 32;
        if (nRoom < nDay) oFont.setStretch(std::clamp(100 * nRoom / nDay, 70, 100));
        m_oShown.setFont(oFont);
    }

    DatePicker& m_oPicker;
    QDateEdit& m_oShown;
    bool m_bMirroring = false;
};

} // namespace

MadeView MakeView(DropDownList& oList, QWidget* pParent, const ViewContext& oContext) {
    return std::make_unique<DropDownView>(oList, pParent, oContext);
}

MadeView MakeView(DatePicker& oPicker, QWidget* pParent, const ViewContext& oContext) {
    return std::make_unique<DateView>(oPicker, pParent, oContext);
}

} // namespace GleanerSvc::Workbench
