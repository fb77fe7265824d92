// The closed locus tag selector controls, one for each allele identification type.
#pragma once

#include "pagebind/Object.h"

namespace GleanerSvc {

class ITagSelector : public virtual IObject {
  public:
    // By reference: the record may come back replaced.
    virtual void LoadParameters(Ref<IObject>& oParameter) = 0;  // shows what the record holds
    virtual void SaveParameters(Ref<IObject>& oDefinition) = 0; // writes the choice of tags into it
    virtual void Active(bool bActive) = 0;                      // True for the selector of the chosen type
};

class IStrLocusTagSelector : public ITagSelector {};
class ISnpLocusTagSelector : public ITagSelector {};

} // namespace GleanerSvc
