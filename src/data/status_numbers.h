// The numbers of the status line's messages. Tables name theirs, and the main window has the texts.
#pragma once

namespace StatusNumber {

/// An index into the texts.
enum : int {
    Search = 0,
    ChooseTable = 1,
    ChooseForPrinting = 2,
    ChooseForSaving = 3,
    CheckingData = 4,
    PickItem = 5,
    DesignValues = 6,
    About = 7,
    EnlargedChart = 8,
    ChooseFormat = 9,
    Preview = 10,
    ChooseFile = 12,
    TableOrGraphByOption = 13,
    TableOrGraphByButton = 14
};

/// The last message that was not only shown comes back.
constexpr int Restore = 100;

/// The number's message without its being remembered.
constexpr int onlyShown(int number) {
    return number + 100;
}

} // namespace StatusNumber
