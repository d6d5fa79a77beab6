#include "BoundedArray.h"

namespace BoundedArrayDetail {
void throwOutOfRange(const char *what, int index, int lower, int upper)
{
    throw StoreIndexError("Subscript out of range: " + std::string(what) + " "
                          + std::to_string(index) + " is outside " + std::to_string(lower) + ".."
                          + std::to_string(upper));
}
} // namespace BoundedArrayDetail
