#include "shell/status_messages.h"

StatusMessages statusMessages(const QString &programTitle) {
    StatusMessages messages;
    messages[0] = "You can search Materials by typing in the 'Search Materials On...' boxes."
                  " Select materials from 'Materials List' and then press 'Show' to view data.";
    messages[1] = "Select table from 'View' menu or by pressing appropriate toolbar button.";
    messages[2] = "Select/de-select tables for printing by clicking"
                  " appropriate check-box(es) and then press 'Print Preview...'";
    messages[3] = "Select/de-select tables to be saved to file by clicking"
                  " appropriate check-box(es), select file format by clicking"
                  " appropriate option button and then press 'Save...'";
    messages[4] = "Checking data...";
    messages[5] = "Mark the required item in list and press 'Select' or double-click the item.";
    messages[6] =
        "Design Values - Enter 'Design Temperature' in box above grid, values calculated automatically.";
    messages[7] = "About " + programTitle;
    messages[8] = "Enlarged Chart - Press 'Return to Material'(Opened folder symbol) or 'X' to return.";
    messages[9] = "Select 'File Format' then press 'Save...'";
    messages[10] = "Print Preview Window - Press 'Print' to print, 'X' to return.";
    messages[12] = "Choose directory and filename then press 'Save'";
    messages[13] = "Select table from 'View' menu or by pressing appropriate toolbar button or option button."
                   " Toggle between 'Table' and 'Graph' using the 'Show' options";
    messages[14] = "Select table from 'View' menu or by pressing appropriate toolbar button."
                   " Toggle between 'Table' and 'Graph' using the 'Show...' button";
    return messages;
}
