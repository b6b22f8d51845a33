#pragma once
// One diary event: a flat record of text fields, born from and written back to one
// line of a monthly file.

#include <string>

namespace orbidex {

class cDiaryRecord {
public:
    std::string ID;
    std::string DateEvent;
    std::string TimeEvent;
    std::string DateCreated;
    std::string timeCreated;
    std::string UserCreatedBy;
    std::string UserOwnedBy;
    std::string details;
    std::string group;
    std::string length;
    std::string Reference;
    std::string Action;
    std::string ActionToPerform;
    std::string ContactID;
    std::string URL;
    std::string JobToDoID;
    std::string Priority;
    std::string status;
    std::string DateRemind;
    std::string TimeRemind;
};

}  // namespace orbidex
