// How grid cells look.
#pragma once

#include <optional>

#include "models/Journal.h"
#include "pagebind/Grid.h"

namespace GleanerSvc::Models {

// What is not set is the grid's default. Colours: red in the lowest byte.
struct CellStyle {
    std::optional<std::int32_t> lControl;
    std::optional<std::int32_t> lInterior;
    std::optional<std::int32_t> lTextColor;
    std::optional<std::int32_t> lBitmap;

    bool IsEmpty() const { return !lControl && !lInterior && !lTextColor && !lBitmap; }
    // Lays another style over this one: what that one sets goes over to this one.
    void Lay(const CellStyle& oOver);
    // "control=52513 interior=255 text=0 bitmap=2000", in this order, what is set of it.
    std::string ToString() const;

    friend bool operator==(const CellStyle&, const CellStyle&) = default;
};

class GridStyle final : public IGridStyle, Journaled {
  public:
    GridStyle(Ref<Journal> oJournal, std::string sObject)
        : Journaled(std::move(oJournal), std::move(sObject)) {}

    void SetControl(std::int32_t lControl) override {
        Call("SetControl", lControl);
        m_oStyle.lControl = lControl;
    }
    void SetInterior(std::int32_t lColor) override {
        Call("SetInterior", lColor);
        m_oStyle.lInterior = lColor;
    }
    void SetTextColor(std::int32_t lColor) override {
        Call("SetTextColor", lColor);
        m_oStyle.lTextColor = lColor;
    }
    void SetBitmap(std::int32_t lBitmap) override {
        Call("SetBitmap", lBitmap);
        m_oStyle.lBitmap = lBitmap;
    }

    const CellStyle& Style() const { return m_oStyle; }

  private:
    CellStyle m_oStyle;
};

} // namespace GleanerSvc::Models
