#pragma once

#include <array>

// Which of a status page's four columns show their lamps and titles, and the axis numbers the
// titles carry. The rules re-show hidden columns only at two axis numbers; boards' users
// know the page by that behaviour, so it is kept as it is.
class StatusColumnRules
{
public:
    static constexpr int kColumns = 4;
    static constexpr int kLastFirstAxis = 4;

    struct Columns
    {
        std::array<bool, kColumns> lampsShown{true, true, true, true};
        std::array<bool, kColumns> titlesShown{true, true, true, true};
        std::array<int, kColumns> titleAxis{0, 1, 2, 3};
    };

    // One refresh's update of the columns for a card with axisCount axes.
    static void apply(Columns& columns, int firstAxis, int axisCount);
    // How many columns, from the first, show axes the card has (and are read).
    static int columnsToRead(int firstAxis, int axisCount);

    // The paging buttons "<<", "<", ">", ">>".
    static int pageFirst(int firstAxis) { return firstAxis - 4 < 0 ? 0 : firstAxis - 4; }
    static int pagePrevious(int firstAxis) { return firstAxis - 1 < 0 ? 0 : firstAxis - 1; }
    static int pageNext(int firstAxis) { return firstAxis + 1 > 4 ? 4 : firstAxis + 1; }
    static int pageLast(int firstAxis) { return firstAxis + 4 > 4 ? 4 : firstAxis + 4; }
    // The first axis of the group that holds an axis: 0 for 0..3, 4 for 4..7, else unchanged.
    static int groupOf(int axis, int firstAxis);
};
