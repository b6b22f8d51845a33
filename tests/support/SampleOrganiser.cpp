#include "SampleOrganiser.h"

#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"

namespace orbidex::test {

namespace {

struct SampleTask {
    int due;  ///< days from today
    const char* time;
    const char* text;
    char priority;  ///< '1' urgent, '2' normal, '3' low
    const char* status;
    int remind;  ///< days from today; kNoReminder for none
};

constexpr int kNoReminder = 999;

constexpr SampleTask kTasks[] = {
    {-3, "0900", "Ring the bank about the loan", '1', "In Progress", -3},
    {-1, "1000", "Send the quarterly VAT return", '1', "Not Started", -2},
    {2, "0830", "Book the car in for its service", '2', "Not Started", 2},
    {-10, "1400", "Renew the office insurance", '2', "Completed", -11},
    {-5, "1100", "Order printer toner", '3', "Done", kNoReminder},
    {1, "1500", "Prepare the board meeting slides", '1', "In Progress", kNoReminder},
    {0, "1200", "Reply to Ann about the conference", '2', "Waiting on someone else", kNoReminder},
    {-7, "0900", "Pay the window cleaner", '3', "Completed", kNoReminder},
    {4, "1000", "Update the staff rota for July", '2', "Not Started", kNoReminder},
    {-2, "1600", "Check the backup tapes", '2', "Not Started", -2},
    {-4, "1700", "Write up the minutes of Monday's meeting", '2', "Completed", kNoReminder},
    {0, "0800", "Call the plumber about the leak", '1', "Not Started", 0},
    {1, "1730", "Collect the dry cleaning", '3', "Not Started", kNoReminder},
    {7, "0930", "Draft the newsletter", '2', "Deferred", kNoReminder},
    {-6, "1000", "Chase the Harrison invoice", '1', "Waiting for available funds", -6},
    {3, "1300", "Buy a birthday present for Tom", '2', "Not Started", 3},
    {-8, "1100", "Fix the squeaky door in reception", '3', "Done", kNoReminder},
    {14, "1000", "Plan the summer outing", '3', "Not Started", kNoReminder},
    {5, "1400", "Review the supplier contracts", '2', "In Progress", kNoReminder},
    {-9, "1000", "Send thank-you cards", '3', "Completed", kNoReminder},
    {-1, "0900", "Renew the domain name", '2', "Waiting for other Task to finish", -1},
    {10, "1600", "Tidy the shared drive", '3', "Not Started", kNoReminder},
    {2, "1100", "Ask for quotes for the new laptops", '2', "Not Started", kNoReminder},
    {-3, "1500", "File the expense receipts", '2', "Completed", kNoReminder},
    {6, "0900", "Prepare the training plan for new starters", '2', "In Progress", kNoReminder},
    {8, "1000", "Confirm the hotel for the trade fair", '1', "Not Started", 8},
    {-12, "1200", "Return the library books", '3', "Done", kNoReminder},
    {1, "1000", "Measure the meeting room for blinds", '3', "Not Started", kNoReminder},
    {20, "0900", "Service the fire extinguishers", '2', "Not Started", kNoReminder},
    {-2, "1400", "Set up the new phone system", '1', "Completed", -2},
};

const char* const kPriorities[] = {"1 - Urgent", "2 - Normal", "3 - Low"};
const char* const kReferences[] = {"Office", "Home", "Finance", ""};
const char* const kActions[] = {"Phone", "Email", "Work", "Visit"};

struct SampleNote {
    const char* title;
    const char* color;  ///< as the note editor's list writes it
    const char* category;
    int created;  ///< days from today
    const char* text;
};

constexpr SampleNote kNotes[] = {
    {"Shopping list", "Yellow       ", "Home", -4, "Milk\r\nBread\r\nCoffee\r\nWashing-up liquid"},
    {"Meeting notes 2 June", "Blue         ", "Work", -3, "Agreed the budget.\r\nAnn to send the minutes."},
    {"Ideas for the garden", "Green        ", "Home", -30, "Raised beds by the fence\r\nA bench under the apple tree"},
    {"Phone numbers", "White        ", "Contacts", -60, "Plumber 01632 960123\r\nGarage 01632 960456"},
    {"Holiday packing", "Orange       ", "Home", -12, "Passports\r\nSun cream\r\nAdaptor plugs"},
    {"Budget 2004", "Red          ", "Finance", -90, "Rent 12,000\r\nStaff 48,000\r\nTravel 3,500"},
    {"Books to read", "Purple       ", "", -45, "The History of Tea\r\nA Year in the Garden"},
    {"Recipe lasagne", "Pink         ", "Home", -20, "Onion, garlic, mince, tomatoes, pasta, cheese sauce"},
    {"Car service history", "", "Car", -200, "March 2003 full service\r\nJanuary 2004 new tyres"},
    {"Conference travel plan", "Blue         ", "Work", -1, "Train at 07:45 from Leeds\r\nHotel booked for two nights"},
};

std::string day(VbDate today, int offset) {
    return FormatDate(today + offset, "yyyymmdd");
}

std::string line(std::initializer_list<std::string> fields) {
    std::string text;
    for (const std::string& field : fields) text += field + "\x1F";
    return text + "\r\n";
}

}  // namespace

std::string SampleTaskFile(VbDate today) {
    std::string file;
    int sequence = 0;
    for (const SampleTask& task : kTasks) {
        ++sequence;
        const std::string id = "N" + day(today, -20) + FormatNumber(sequence, "0000");
        const bool remind = task.remind != kNoReminder;
        file += line({id, day(today, task.due), kReferences[sequence % 4], task.time, sequence % 3 == 0 ? "30" : "60",
                      kActions[sequence % 4], sequence == 7 ? "Ann Smith" : "",
                      sequence == 5 ? "http://www.example.com/toner" : "", "", remind ? day(today, task.remind) : "",
                      remind ? "0900" : "", kPriorities[task.priority - '1'], task.status,
                      sequence % 5 == 0 ? "$25.00" : "", task.text});
    }
    return file;
}

void WriteSampleOrganiser(const std::string& dataFolder, VbDate today) {
    WriteWholeFile(dataFolder + "D_tasks.dat", SampleTaskFile(today));
    MakeFolder(dataFolder + "notes");
    std::string list;
    int sequence = 0;
    for (const SampleNote& note : kNotes) {
        ++sequence;
        const std::string file = std::string(note.title) + ".txt";
        list += line({"N" + day(today, -20) + FormatNumber(sequence, "0000"), day(today, note.created),
                      day(today, note.created / 2), "", note.color, note.category, file, note.title});
        WriteWholeFile(dataFolder + "notes\\" + file, std::string(note.title) + "\r\n" + note.text + "\r\n");
    }
    WriteWholeFile(dataFolder + "allnotes.dat", list);
}

}  // namespace orbidex::test
