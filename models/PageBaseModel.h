// The framework's base object of a page.
#pragma once

#include <memory>
#include <string>

#include "models/Journal.h"
#include "pagebind/Framework.h"

namespace GleanerSvc::Models {

class PageBaseModel;

// A host as the base object of a page knows it.
class IPageFrame : public IPageHost {
  public:
    virtual void ValidatePage(PageBaseModel& oPage) = 0; // the page asks for it
};

// Created by the page; a host attaches itself before it raises Initialize. Until then, and when that host has
// ended, Host, Parameters and ValidatePage fail with object not set. The host is not kept alive.
class PageBaseModel final : public IPageBase, public IPage, private Journaled {
  public:
    explicit PageBaseModel(Ref<Journal> oJournal) : Journaled(std::move(oJournal), "PageBase") {}

    Ref<IPageHost> Host() override;
    Ref<IKeyedCollection> Parameters() override;
    void ValidatePage() override;
    PageEvents& Events() override { return m_oEvents; } // a connection, not a call: not in the journal

    // The host's door.
    void Attach(const Ref<IPageFrame>& oFrame, Ref<IKeyedCollection> colParameters);

    // "host=on handles=Initialize Activate Validate": the events that have a subscriber.
    std::string ToString() const;

  private:
    Ref<IPageFrame> Frame() const;

    std::weak_ptr<IPageFrame> m_oFrame;
    Ref<IKeyedCollection> m_colParameters;
    PageEvents m_oEvents;
};

} // namespace GleanerSvc::Models
