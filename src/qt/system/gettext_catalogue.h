// GettextCatalogue: the message catalogue of the user's language; gives the key back where there is none.
#pragma once

#include "platform/places.h"
#include "platform/texts.h"

namespace quill {

class GettextCatalogue : public Catalogue {
public:
    explicit GettextCatalogue(const Places& places) : places_(places) {}
    std::string Lookup(std::string_view english) const override;

private:
    void Bind() const;

    const Places& places_;
    mutable bool bound_ = false;
};

} // namespace quill
