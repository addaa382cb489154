#include "StatusColumnRules.h"

void StatusColumnRules::apply(Columns& columns, int firstAxis, int axisCount)
{
    if (firstAxis > axisCount)
        columns.lampsShown.fill(false);
    for (int n = 0; n < kColumns; ++n) {
        const int axis = firstAxis + n;
        if (axis == axisCount - 3 || axis == axisCount - 7) {
            columns.lampsShown.fill(true);
            columns.titlesShown.fill(true);
        } else if (axis == axisCount) {
            for (int hidden = n; hidden < kColumns; ++hidden) {
                columns.lampsShown[static_cast<std::size_t>(hidden)] = false;
                columns.titlesShown[static_cast<std::size_t>(hidden)] = false;
            }
        }
        // Titles beyond the board are numbered too.
        columns.titleAxis[static_cast<std::size_t>(n)] = axis;
    }
}

int StatusColumnRules::columnsToRead(int firstAxis, int axisCount)
{
    const int available = axisCount - firstAxis;
    if (available <= 0)
        return 0;
    return available < kColumns ? available : kColumns;
}

int StatusColumnRules::groupOf(int axis, int firstAxis)
{
    if (axis >= 0 && axis <= 3)
        return 0;
    if (axis >= 4 && axis <= 7)
        return 4;
    return firstAxis;
}
