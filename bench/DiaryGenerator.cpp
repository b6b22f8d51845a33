#include "DiaryGenerator.h"

#include <cstdio>

#include "foundation/FileSystem.h"

namespace orbidex::bench {

namespace {

const char* const kDetails[] = {
    "Call the bank about the loan", "Review the budget figures",   "Team meeting on the new product",
    "Lunch with a supplier",        "Write the monthly report",    "Visit the Leeds office",
    "Plan next quarter's training", "Check the delivery schedule", "Interview for the sales post",
    "Dentist appointment",
};
const char* const kReferences[] = {"Phone", "Office", "Client", "Admin", "Sales", "Travel"};
const char* const kActions[] = {"Call", "Visit", "Email", "Write", "Plan"};
const char* const kContacts[] = {"fred", "mary", "ann", "bob"};
const char* const kLengths[] = {"15", "30", "45", "60", "90", "120"};
const char* const kPriorities[] = {"Normal", "High", "Low"};
const char* const kLocations[] = {"Office", "Room 2", "Cafe", "Head office", "Home"};

template <size_t N>
const char* pick(const char* const (&list)[N], long i) {
    return list[static_cast<size_t>(i) % N];
}

struct Fields {
    std::string reference, action, url, status, details;
};

// What kind of event the n-th of the diary is; the planted words go only on plain
// events, so that every line that holds one is found by a search.
Fields fieldsOf(long n) {
    Fields f{pick(kReferences, n / 3), pick(kActions, n / 7), "", "",
             std::string(kDetails[n % 10]) + " (file " + std::to_string(n % 9973) + ")"};
    if (n % 1500 == 750) f.details += " trip to Zanzibar";
    if (n % 50 == 11) f.status = "Private";
    if (n % 25 == 4) {
        f.reference = "Meeting";
        f.action = "Meeting request for fred, mary, ";
    }
    if (n % 20 == 7) {  // the usage recorder's line
        f.reference = "PCFile";
        f.action = "Usage";
        f.details = "Computer in use " + std::to_string(n % 977);
    }
    if (n % 20 == 17) {  // the file launcher's line
        f.reference = "Edit";
        f.action = "PCFile";
        f.url = "C:\\Reports\\report" + std::to_string(n % 97) + ".doc";
        f.details = "Edited report" + std::to_string(n % 97) + ".doc";
    }
    return f;
}

}  // namespace

GeneratedDiary GenerateDiary(const std::string& storedDataPath, int firstYear, int years, int eventsPerMonth) {
    GeneratedDiary diary;
    long n = 0;
    for (int year = firstYear; year < firstYear + years; ++year) {
        for (int month = 1; month <= 12; ++month) {
            std::string bytes;
            int lastDay = 0, seq = 0;
            for (int j = 0; j < eventsPerMonth; ++j, ++n) {
                const int day = 1 + j * 28 / eventsPerMonth;
                seq = day == lastDay ? seq + 1 : 1;
                lastDay = day;
                const int minutes = 8 * 60 + ((seq + 3 * year + month) * 15) % (10 * 60);
                char date[32], id[48], time[24];
                std::snprintf(date, sizeof date, "%04d%02d%02d", year, month, day);
                std::snprintf(id, sizeof id, "D%s%04d", date, seq);
                std::snprintf(time, sizeof time, "%02d%02d", minutes / 60, minutes % 60);
                const Fields f = fieldsOf(n);
                const std::string d = "\x1F";
                bytes += id + d + date + d + f.reference + d + time + d + pick(kLengths, n / 5) + d + f.action + d +
                         pick(kContacts, n) + d + f.url + d + d + d + d + pick(kPriorities, n / 11) + d + f.status + d +
                         pick(kLocations, n / 13) + d + f.details + d + "\r\n";
            }
            char name[32];
            std::snprintf(name, sizeof name, "D%04d%02d.dat", year, month);
            WriteWholeFile(storedDataPath + name, bytes);
            ++diary.files;
            diary.events += eventsPerMonth;
            diary.bytes += static_cast<long long>(bytes.size());
        }
    }
    return diary;
}

}  // namespace orbidex::bench
