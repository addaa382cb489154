#include "CallShape.h"

#include "SimFamily.h"

#include <string>

namespace nrxsim {

bool CallShape::reaches(SimFamily& family, Address address) const
{
    if (!card)
        return true;
    const SimCard* c = family.card(address.card);
    if (c && (!axis || c->axis(address.axis)))
        return true;
    family.note(SimLog::Errors,
                "card " + std::to_string(address.card) +
                    (axis ? " axis " + std::to_string(address.axis) : "") +
                    (family.cardCount() ? " does not exist" : " before LoadDevice"));
    return false;
}

} // namespace nrxsim
