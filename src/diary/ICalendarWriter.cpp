#include "diary/ICalendarWriter.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>

#include "diary/ICalendarFields.h"
#include "foundation/Cp1252.h"
#include "foundation/VbString.h"

namespace orbidex {

using namespace ical;

namespace {

// A standard text property, when the field is not empty.
template <typename Make>
void addIfAny(icalcomponent* component, Make make, const std::string& field) {
    if (!field.empty()) icalcomponent_add_property(component, make(Utf8FromCp1252(field).c_str()));
}

// One of the diary's own fields, when it is not empty.
void addOwn(icalcomponent* component, const char* name, const std::string& field) {
    if (field.empty()) return;
    icalproperty* property = icalproperty_new_x(Utf8FromCp1252(field).c_str());
    icalproperty_set_x_name(property, name);
    icalcomponent_add_property(component, property);
}

icaltimetype utcStamp(VbDate now) {
    std::tm local{};
    local.tm_year = Year(now) - 1900;
    local.tm_mon = Month(now) - 1;
    local.tm_mday = Day(now);
    local.tm_hour = Hour(now);
    local.tm_min = Minute(now);
    local.tm_sec = Second(now);
    local.tm_isdst = -1;
    return icaltime_from_timet_with_zone(std::mktime(&local), 0, icaltimezone_get_utc_timezone());
}

// A reminder `before` minutes ahead of the start (of the due time for a task).
void addAlarm(icalcomponent* component, long before, const std::string& details, bool ofTheEnd) {
    icalcomponent* alarm = icalcomponent_new_valarm();
    icalcomponent_add_property(alarm, icalproperty_new_action(ICAL_ACTION_DISPLAY));
    icaltriggertype trigger{};
    trigger.time = icaltime_null_time();
    trigger.duration = icaldurationtype_from_int(static_cast<int>(-before * 60));
    icalproperty* property = icalproperty_new_trigger(trigger);
    if (ofTheEnd) icalproperty_add_parameter(property, icalparameter_new_related(ICAL_RELATED_END));
    icalcomponent_add_property(alarm, property);
    icalcomponent_add_property(alarm, icalproperty_new_description(Utf8FromCp1252(details).c_str()));
    icalcomponent_add_component(component, alarm);
}

// Minutes from `start` to the reminder's date and time; false when there is no
// readable reminder.
bool reminderBefore(const icaltimetype& start, const std::string& date, const std::string& time, long& before) {
    icaltimetype remind;
    if (!FloatingTime(date, time, remind) || remind.is_date) return false;
    before = static_cast<long>(DateDiff("n", ToVbDate(remind), ToVbDate(start)));
    return true;
}

bool addEvent(icalcomponent* calendar, const cDiaryRecord& event, const icaltimetype& stamp) {
    icaltimetype start;
    if (!FloatingTime(event.DateEvent, event.TimeEvent, start) || start.is_date) return false;
    icalcomponent* vevent = icalcomponent_new_vevent();
    const std::string uid = event.ID + "-" + event.DateEvent + "@orbidex";
    icalcomponent_add_property(vevent, icalproperty_new_uid(Utf8FromCp1252(uid).c_str()));
    icalcomponent_add_property(vevent, icalproperty_new_dtstamp(stamp));
    icalcomponent_add_property(vevent, icalproperty_new_dtstart(start));
    const long minutes = std::max(0L, static_cast<long>(Val(event.length)));
    icalcomponent_add_property(vevent, icalproperty_new_duration(icaldurationtype_from_int(minutes * 60)));
    if (CStr(minutes) != event.length) addOwn(vevent, kLength, event.length);
    addIfAny(vevent, icalproperty_new_summary, event.details);
    addIfAny(vevent, icalproperty_new_description, event.details);
    addIfAny(vevent, icalproperty_new_location, event.ActionToPerform);
    if (event.status == "Private")
        icalcomponent_add_property(vevent, icalproperty_new_class(ICAL_CLASS_PRIVATE));
    else
        addOwn(vevent, kStatus, event.status);
    addIfAny(vevent, icalproperty_new_categories, event.Reference);
    addOwn(vevent, kReference, event.Reference);
    addOwn(vevent, kAction, event.Action);
    addIfAny(vevent, icalproperty_new_contact, event.ContactID);
    addOwn(vevent, kContact, event.ContactID);
    addOwn(vevent, kUrl, event.URL);
    addOwn(vevent, kJob, event.JobToDoID);
    addOwn(vevent, kPriority, event.Priority);
    long before = 0;
    if (reminderBefore(start, event.DateRemind, event.TimeRemind, before))
        addAlarm(vevent, before, event.details, false);
    icalcomponent_add_component(calendar, vevent);
    return true;
}

// The task's urgency as the iCalendar priority: 1 high, 5 middle, 9 low, 0 none.
int priorityOf(const std::string& priority) {
    switch (priority.empty() ? ' ' : priority.front()) {
        case '1':
            return 1;
        case '2':
            return 5;
        case '3':
            return 9;
        default:
            return 0;
    }
}

void addTask(icalcomponent* calendar, const cTask& task, const icaltimetype& stamp) {
    icalcomponent* todo = icalcomponent_new_vtodo();
    icalcomponent_add_property(todo, icalproperty_new_uid(Utf8FromCp1252(task.ID + "@orbidex").c_str()));
    icalcomponent_add_property(todo, icalproperty_new_dtstamp(stamp));
    icaltimetype due;
    const bool hasDue = FloatingTime(task.DateCreated, task.timeCreated, due) && !due.is_date;
    if (hasDue) icalcomponent_add_property(todo, icalproperty_new_due(due));
    addIfAny(todo, icalproperty_new_summary, task.details);
    if (priorityOf(task.Priority) != 0)
        icalcomponent_add_property(todo, icalproperty_new_priority(priorityOf(task.Priority)));
    addOwn(todo, kPriority, task.Priority);
    if (task.isTaskActive()) {
        icalcomponent_add_property(todo, icalproperty_new_status(ICAL_STATUS_NEEDSACTION));
    } else {
        icalcomponent_add_property(todo, icalproperty_new_status(ICAL_STATUS_COMPLETED));
        icalcomponent_add_property(todo, icalproperty_new_percentcomplete(100));
    }
    addOwn(todo, kStatus, task.status);
    addOwn(todo, kLength, task.length);
    addIfAny(todo, icalproperty_new_categories, task.Reference);
    addOwn(todo, kReference, task.Reference);
    addOwn(todo, kAction, task.ActionID);
    addIfAny(todo, icalproperty_new_contact, task.ContactID);
    addOwn(todo, kContact, task.ContactID);
    addOwn(todo, kUrl, task.UrlID);
    addOwn(todo, kJob, task.JobToDoID);
    addOwn(todo, kToPerform, task.ActionToPerform);
    long before = 0;
    if (hasDue && reminderBefore(due, task.RemindDate, task.RemindTime, before))
        addAlarm(todo, before, task.details, true);
    icalcomponent_add_component(calendar, todo);
}

std::string textOf(icalcomponent* component) {
    char* text = icalcomponent_as_ical_string_r(component);
    std::string result = text != nullptr ? text : "";
    std::free(text);
    return result;
}

}  // namespace

std::string WriteICalendar(const std::vector<cDiaryRecord>& events, const std::vector<cTask>& tasks, VbDate now,
                           long* leftOut) {
    const Component calendar(icalcomponent_new_vcalendar());
    icalcomponent_add_property(calendar.get(), icalproperty_new_version("2.0"));
    icalcomponent_add_property(calendar.get(), icalproperty_new_prodid(kOurProduct));
    icalcomponent_add_property(calendar.get(), icalproperty_new_calscale("GREGORIAN"));
    const icaltimetype stamp = utcStamp(now);
    long skipped = 0;
    for (const cDiaryRecord& event : events)
        if (!addEvent(calendar.get(), event, stamp)) ++skipped;
    for (const cTask& task : tasks) addTask(calendar.get(), task, stamp);
    if (leftOut != nullptr) *leftOut = skipped;
    return textOf(calendar.get());
}

std::vector<std::string> ICalendarProblems(const std::string& text) {
    std::vector<std::string> problems;
    const Component calendar(icalparser_parse_string(text.c_str()));
    if (!calendar || icalcomponent_isa(calendar.get()) != ICAL_VCALENDAR_COMPONENT) {
        problems.emplace_back("not one calendar");
        return problems;
    }
    if (icalrestriction_check(calendar.get()) == 0) problems.emplace_back("the calendar breaks a restriction");
    // The library marks every fault it finds with an X-LIC-ERROR property where it lies.
    const auto collect = [&problems](icalcomponent* component) {
        for (icalproperty* p = icalcomponent_get_first_property(component, ICAL_XLICERROR_PROPERTY); p != nullptr;
             p = icalcomponent_get_next_property(component, ICAL_XLICERROR_PROPERTY))
            if (const char* error = icalproperty_get_xlicerror(p)) problems.emplace_back(error);
    };
    collect(calendar.get());
    for (icalcomponent* c = icalcomponent_get_first_component(calendar.get(), ICAL_ANY_COMPONENT); c != nullptr;
         c = icalcomponent_get_next_component(calendar.get(), ICAL_ANY_COMPONENT)) {
        collect(c);
        for (icalcomponent* inner = icalcomponent_get_first_component(c, ICAL_ANY_COMPONENT); inner != nullptr;
             inner = icalcomponent_get_next_component(c, ICAL_ANY_COMPONENT))
            collect(inner);
    }
    return problems;
}

}  // namespace orbidex
