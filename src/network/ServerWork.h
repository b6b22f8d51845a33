#pragma once
// The records of the files the server leaves for a client: _4CLIENT.CHANGE holds a
// changed or cancelled meeting in three lines (who changed it, "OLD " + the event
// as it was, "NEW " + the event as it is), _4CLIENT.MESSAGE a message in three
// lines (unused, the sender, the text).  The lines are taken three at a time as they
// stand; a broken record is skipped, never mended.

#include <string>
#include <vector>

namespace orbidex {

struct ChangeRecord {
    std::string user;      ///< who made the change, the partner of the answers
    std::string oldEvent;  ///< the event line as it was
    std::string newEvent;  ///< the event line as it is; no date and time: cancelled
};

struct MessageRecord {
    std::string sender;
    std::string text;
};

/// Every record of three lines none of which is empty.
std::vector<ChangeRecord> ReadChangeRecords(const std::string& text);
/// Every record of three lines whose third line is not empty.
std::vector<MessageRecord> ReadMessageRecords(const std::string& text);

}  // namespace orbidex
