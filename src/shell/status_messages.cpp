#include "shell/status_messages.h"

#include "data/status_numbers.h"

StatusMessages statusMessages(const QString &programTitle) {
    StatusMessages messages;
    messages[StatusNumber::Search] =
        "You can search Materials by typing in the 'Search Materials On...' boxes."
        " Select materials from 'Materials List' and then press 'Show' to view data.";
    messages[StatusNumber::ChooseTable] =
        "Select table from 'View' menu or by pressing appropriate toolbar button.";
    messages[StatusNumber::ChooseForPrinting] =
        "Select/de-select tables for printing by clicking"
        " appropriate check-box(es) and then press 'Print Preview...'";
    messages[StatusNumber::ChooseForSaving] = "Select/de-select tables to be saved to file by clicking"
                                              " appropriate check-box(es), select file format by clicking"
                                              " appropriate option button and then press 'Save...'";
    messages[StatusNumber::CheckingData] = "Checking data...";
    messages[StatusNumber::PickItem] =
        "Mark the required item in list and press 'Select' or double-click the item.";
    messages[StatusNumber::DesignValues] =
        "Design Values - Enter 'Design Temperature' in box above grid, values calculated automatically.";
    messages[StatusNumber::About] = "About " + programTitle;
    messages[StatusNumber::EnlargedChart] =
        "Enlarged Chart - Press 'Return to Material'(Opened folder symbol) or 'X' to return.";
    messages[StatusNumber::ChooseFormat] = "Select 'File Format' then press 'Save...'";
    messages[StatusNumber::Preview] = "Print Preview Window - Press 'Print' to print, 'X' to return.";
    messages[StatusNumber::ChooseFile] = "Choose directory and filename then press 'Save'";
    messages[StatusNumber::TableOrGraphByOption] =
        "Select table from 'View' menu or by pressing appropriate toolbar button or option button."
        " Toggle between 'Table' and 'Graph' using the 'Show' options";
    messages[StatusNumber::TableOrGraphByButton] =
        "Select table from 'View' menu or by pressing appropriate toolbar button."
        " Toggle between 'Table' and 'Graph' using the 'Show...' button";
    return messages;
}
