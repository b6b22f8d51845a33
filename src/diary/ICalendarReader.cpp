#include "diary/ICalendarReader.h"

#include <algorithm>
#include <ctime>
#include <functional>
#include <set>

#include "diary/ICalendarFields.h"
#include "foundation/Cp1252.h"
#include "foundation/VbString.h"

namespace orbidex {

using namespace ical;

namespace {

// A runaway rule ("every minute for ever") stops here.
constexpr int kMostSteps = 100000;
// The dates one repeating event may give: ten years of a daily event.
constexpr size_t kMostDates = 3660;
// The days an all-day event may cover.
constexpr int kMostDays = 366;
// A length longer than three digits does not fit the event line.
constexpr long kLongestEvent = 999;

// A text of the file as one line of the diary: Windows-1252, line breaks and the
// field delimiter as blanks.
std::string lineText(const char* utf8) {
    std::string text = Cp1252FromUtf8(utf8 != nullptr ? utf8 : "");
    for (char& c : text)
        if (c == '\r' || c == '\n' || c == '\t' || c == '\x1F' || c == '\x1E') c = ' ';
    return text;
}

icalproperty* first(icalcomponent* component, icalproperty_kind kind) {
    return icalcomponent_get_first_property(component, kind);
}

// The text of a property as it reads, its escapes undone.
std::string textOf(icalcomponent* component, icalproperty_kind kind) {
    icalproperty* property = first(component, kind);
    if (property == nullptr) return "";
    icalvalue* value = icalproperty_get_value(property);
    if (value != nullptr && icalvalue_isa(value) == ICAL_TEXT_VALUE) return lineText(icalvalue_get_text(value));
    return lineText(icalproperty_get_value_as_string(property));
}

// One of the diary's own fields, as this program wrote it; nullptr when absent.
icalproperty* own(icalcomponent* component, const char* name) {
    for (icalproperty* p = first(component, ICAL_X_PROPERTY); p != nullptr;
         p = icalcomponent_get_next_property(component, ICAL_X_PROPERTY))
        if (icalproperty_get_x_name(p) != nullptr && std::string(icalproperty_get_x_name(p)) == name) return p;
    return nullptr;
}

std::string summaryOf(icalcomponent* component) {
    const std::string summary = textOf(component, ICAL_SUMMARY_PROPERTY);
    return summary.empty() ? textOf(component, ICAL_DESCRIPTION_PROPERTY) : summary;
}

// A time of the file as the local wall-clock time; a date and a floating time
// stay as they stand.
icaltimetype toLocal(icaltimetype time) {
    if (time.is_date || time.zone == nullptr) return time;
    const std::time_t utc = icaltime_as_timet_with_zone(time, time.zone);
    std::tm local{};
    localtime_r(&utc, &local);
    icaltimetype result = icaltime_null_time();
    result.year = local.tm_year + 1900;
    result.month = local.tm_mon + 1;
    result.day = local.tm_mday;
    result.hour = local.tm_hour;
    result.minute = local.tm_min;
    return result;
}

std::string dateText(const icaltimetype& local) {
    return FormatDate(ToVbDate(local), "yyyymmdd");
}
std::string timeText(const icaltimetype& local) {
    return FormatDate(ToVbDate(local), "hhnn");
}
// A key that tells two instants apart to the minute, or two days for a date.
std::string keyOf(const icaltimetype& time) {
    const icaltimetype local = toLocal(time);
    return local.is_date ? dateText(local) : dateText(local) + timeText(local);
}

// The reminder of the first alarm as a local date and time; false without one.
bool reminderOf(icalcomponent* component, const icaltimetype& start, const icaltimetype& end, VbDate& remind) {
    icalcomponent* alarm = icalcomponent_get_first_component(component, ICAL_VALARM_COMPONENT);
    if (alarm == nullptr) return false;
    icalproperty* property = first(alarm, ICAL_TRIGGER_PROPERTY);
    if (property == nullptr) return false;
    const icaltriggertype trigger = icalproperty_get_trigger(property);
    if (!icaltime_is_null_time(trigger.time)) {
        remind = ToVbDate(toLocal(trigger.time));
        return true;
    }
    icalparameter* related = icalproperty_get_first_parameter(property, ICAL_RELATED_PARAMETER);
    const bool ofTheEnd = related != nullptr && icalparameter_get_related(related) == ICAL_RELATED_END;
    remind = DateAdd("s", icaldurationtype_as_int(trigger.duration), ToVbDate(ofTheEnd ? end : start));
    return true;
}

class Reader {
public:
    Reader(VbDate from, VbDate to) : from_(DateOnly(from)), to_(DateOnly(to)) {}

    void Read(icalcomponent* calendar) {
        ours_ = textOf(calendar, ICAL_PRODID_PROPERTY) == kOurProduct;
        noteUnread(calendar);
        // Instances that replace one date of a repeating event, by event and date.
        for (icalcomponent* c = icalcomponent_get_first_component(calendar, ICAL_VEVENT_COMPONENT); c != nullptr;
             c = icalcomponent_get_next_component(calendar, ICAL_VEVENT_COMPONENT))
            if (icalproperty* id = first(c, ICAL_RECURRENCEID_PROPERTY))
                replaced_.insert(textOf(c, ICAL_UID_PROPERTY) + " " +
                                 keyOf(icalproperty_get_datetime_with_component(id, c)));
        for (icalcomponent* c = icalcomponent_get_first_component(calendar, ICAL_ANY_COMPONENT); c != nullptr;
             c = icalcomponent_get_next_component(calendar, ICAL_ANY_COMPONENT)) {
            noteUnread(c);
            switch (icalcomponent_isa(c)) {
                case ICAL_VEVENT_COMPONENT:
                    readEvent(c);
                    break;
                case ICAL_VTODO_COMPONENT:
                    readTask(c);
                    break;
                case ICAL_VTIMEZONE_COMPONENT:
                    break;
                default:
                    skipOtherPart(c);
            }
        }
    }

    ICalendarContents result;

private:
    // The diary's own field when the file has it; else, in a file of this program,
    // an empty field, and in another program's the standard property's text.
    std::string field(icalcomponent* component, const char* name, icalproperty_kind standard) const {
        if (icalproperty* p = own(component, name)) return lineText(icalproperty_get_x(p));
        return ours_ || standard == ICAL_NO_PROPERTY ? "" : textOf(component, standard);
    }
    // True when the field comes from the diary's own property, or is empty for want of one.
    bool ownField(icalcomponent* component, const char* name) const { return ours_ || own(component, name) != nullptr; }

    void skip(const std::string& what, const std::string& why) { result.skipped.push_back(what + " - " + why); }

    void skipOtherPart(icalcomponent* c) {
        const std::string kind = lineText(icalcomponent_kind_to_string(icalcomponent_isa(c)));
        skip(kind.empty() ? "A part of unknown kind" : kind, "not an event or a to-do");
    }

    void noteUnread(icalcomponent* component) {
        for (icalproperty* p = first(component, ICAL_XLICERROR_PROPERTY); p != nullptr;
             p = icalcomponent_get_next_property(component, ICAL_XLICERROR_PROPERTY))
            result.unread.push_back(lineText(icalproperty_get_xlicerror(p)));
    }

    void readEvent(icalcomponent* c) {
        const std::string summary = summaryOf(c);
        const icaltimetype start = icalcomponent_get_dtstart(c);
        if (icaltime_is_null_time(start) || !icaltime_is_valid_time(start)) {
            skip(summary, "it has no start date");
            return;
        }
        const std::string name = dateText(toLocal(start)) + " " + summary;
        if (icalcomponent_get_status(c) == ICAL_STATUS_CANCELLED) {
            skip(name, "it is cancelled");
            return;
        }
        const cDiaryRecord pattern = eventFields(c, summary);
        const int seconds = lengthInSeconds(c, start);
        const bool repeats = first(c, ICAL_RRULE_PROPERTY) != nullptr || first(c, ICAL_RDATE_PROPERTY) != nullptr;
        if (!repeats || first(c, ICAL_RECURRENCEID_PROPERTY) != nullptr) {
            addOccurrence(c, pattern, start, seconds);
            return;
        }
        const size_t before = result.events.size();
        const std::string uid = textOf(c, ICAL_UID_PROPERTY);
        const std::set<std::string> exceptions = exceptionsOf(c);
        for (const icaltimetype& instance : instancesOf(c, start)) {
            const std::string key = keyOf(instance);
            if (exceptions.count(key) != 0 || exceptions.count(Left(key, 8)) != 0 ||
                replaced_.count(uid + " " + key) != 0)
                continue;
            addOccurrence(c, pattern, instance, seconds);
        }
        if (result.events.size() - before >= kMostDates)
            skip(name, "only its first " + CStr(static_cast<long>(kMostDates)) + " dates were added");
        if (result.events.size() == before)
            skip(name, "it repeats, but not between " + FormatDate(from_, "yyyy-mm-dd") + " and " +
                           FormatDate(to_, "yyyy-mm-dd"));
    }

    // The starts of a repeating event that fall between the two dates, in order.
    std::vector<icaltimetype> instancesOf(icalcomponent* c, const icaltimetype& start) {
        std::vector<icaltimetype> instances;
        const auto keep = [&](icaltimetype time) {
            time.zone = start.zone;
            const VbDate day = DateOnly(ToVbDate(toLocal(time)));
            if (day >= from_ && day <= to_) instances.push_back(time);
            return day <= to_ && instances.size() < kMostDates;
        };
        for (icalproperty* p = first(c, ICAL_RRULE_PROPERTY); p != nullptr;
             p = icalcomponent_get_next_property(c, ICAL_RRULE_PROPERTY)) {
            icalrecur_iterator* steps = icalrecur_iterator_new(icalproperty_get_rrule(p), start);
            if (steps == nullptr) continue;
            int count = 0;
            for (icaltimetype next = icalrecur_iterator_next(steps); !icaltime_is_null_time(next) && count < kMostSteps;
                 next = icalrecur_iterator_next(steps), ++count)
                if (!keep(next)) break;
            icalrecur_iterator_free(steps);
        }
        for (icalproperty* p = first(c, ICAL_RDATE_PROPERTY); p != nullptr;
             p = icalcomponent_get_next_property(c, ICAL_RDATE_PROPERTY)) {
            const icaldatetimeperiodtype date = icalproperty_get_rdate(p);
            if (!icaltime_is_null_time(date.time)) keep(date.time);
        }
        std::sort(instances.begin(), instances.end(),
                  [](const icaltimetype& a, const icaltimetype& b) { return icaltime_compare(a, b) < 0; });
        instances.erase(
            std::unique(instances.begin(), instances.end(),
                        [](const icaltimetype& a, const icaltimetype& b) { return icaltime_compare(a, b) == 0; }),
            instances.end());
        return instances;
    }

    static std::set<std::string> exceptionsOf(icalcomponent* c) {
        std::set<std::string> keys;
        for (icalproperty* p = first(c, ICAL_EXDATE_PROPERTY); p != nullptr;
             p = icalcomponent_get_next_property(c, ICAL_EXDATE_PROPERTY))
            keys.insert(keyOf(icalproperty_get_datetime_with_component(p, c)));
        return keys;
    }

    static int lengthInSeconds(icalcomponent* c, const icaltimetype& start) {
        if (icalproperty* duration = first(c, ICAL_DURATION_PROPERTY))
            return icaldurationtype_as_int(icalproperty_get_duration(duration));
        const icaltimetype end = icalcomponent_get_dtend(c);
        if (icaltime_is_null_time(end)) return start.is_date ? 86400 : 0;
        // Kept within what an event can take, so that far-off ends do not overflow.
        if (start.is_date)
            return static_cast<int>(std::clamp(DateDiff("d", ToVbDate(start), ToVbDate(end)), 0L, kMostDays + 1L)) *
                   86400;
        return static_cast<int>(
                   std::clamp(DateDiff("n", ToVbDate(toLocal(start)), ToVbDate(toLocal(end))), 0L, kLongestEvent + 1)) *
               60;
    }

    cDiaryRecord eventFields(icalcomponent* c, const std::string& summary) {
        cDiaryRecord event;
        event.details = summary;
        event.ActionToPerform = textOf(c, ICAL_LOCATION_PROPERTY);
        const icalproperty_class kind = first(c, ICAL_CLASS_PROPERTY) != nullptr
                                            ? icalproperty_get_class(first(c, ICAL_CLASS_PROPERTY))
                                            : ICAL_CLASS_NONE;
        event.status = kind == ICAL_CLASS_PRIVATE || kind == ICAL_CLASS_CONFIDENTIAL
                           ? "Private"
                           : field(c, kStatus, ICAL_NO_PROPERTY);
        event.Reference = field(c, kReference, ICAL_CATEGORIES_PROPERTY);
        event.Action = field(c, kAction, ICAL_NO_PROPERTY);
        event.ContactID = field(c, kContact, ICAL_CONTACT_PROPERTY);
        event.URL = field(c, kUrl, ICAL_URL_PROPERTY);
        event.JobToDoID = field(c, kJob, ICAL_NO_PROPERTY);
        event.Priority = field(c, kPriority, ICAL_NO_PROPERTY);
        return event;
    }

    void addOccurrence(icalcomponent* c, const cDiaryRecord& pattern, const icaltimetype& start, int seconds) {
        if (start.is_date) {
            // An all-day event stands at "0000" on each of its days, as an event without a time.
            const int days = std::clamp(seconds / 86400, 1, kMostDays);
            for (int d = 0; d < days; ++d) {
                cDiaryRecord event = pattern;
                event.DateEvent = FormatDate(DateAdd("d", d, ToVbDate(start)), "yyyymmdd");
                event.TimeEvent = "0000";
                event.length = own(c, kLength) != nullptr ? field(c, kLength, ICAL_NO_PROPERTY) : "1";
                result.events.push_back(event);
            }
            return;
        }
        const icaltimetype local = toLocal(start);
        cDiaryRecord event = pattern;
        event.DateEvent = dateText(local);
        event.TimeEvent = timeText(local);
        event.length = own(c, kLength) != nullptr ? field(c, kLength, ICAL_NO_PROPERTY)
                                                  : CStr(std::clamp(seconds / 60L, 0L, kLongestEvent));
        VbDate remind = 0;
        const icaltimetype end = FromVbDate(DateAdd("s", seconds, ToVbDate(local)));
        if (reminderOf(c, local, end, remind)) {
            event.DateRemind = FormatDate(remind, "yyyymmdd");
            event.TimeRemind = FormatDate(remind, "hhnn");
        }
        result.events.push_back(event);
    }

    void readTask(icalcomponent* c) {
        cTask task;
        task.details = summaryOf(c);
        const icalproperty_status status = icalcomponent_get_status(c);
        if (status == ICAL_STATUS_CANCELLED) {
            skip(task.details, "it is cancelled");
            return;
        }
        icaltimetype due = icalcomponent_get_due(c);
        if (icaltime_is_null_time(due)) due = icalcomponent_get_dtstart(c);
        if (icaltime_is_null_time(due) || !icaltime_is_valid_time(due)) due = FromVbDate(DateOnly(Now()));
        due = toLocal(due);
        task.DateCreated = dateText(due);
        task.timeCreated = due.is_date ? "0000" : timeText(due);
        task.length = ownField(c, kLength) ? field(c, kLength, ICAL_NO_PROPERTY) : "60";
        task.Reference = field(c, kReference, ICAL_CATEGORIES_PROPERTY);
        task.ActionID = field(c, kAction, ICAL_NO_PROPERTY);
        task.ContactID = field(c, kContact, ICAL_CONTACT_PROPERTY);
        task.UrlID = field(c, kUrl, ICAL_URL_PROPERTY);
        task.JobToDoID = field(c, kJob, ICAL_NO_PROPERTY);
        task.ActionToPerform = field(c, kToPerform, ICAL_NO_PROPERTY);
        task.Priority = ownField(c, kPriority) ? field(c, kPriority, ICAL_NO_PROPERTY) : priorityText(c);
        task.status = ownField(c, kStatus) ? field(c, kStatus, ICAL_NO_PROPERTY) : statusText(c, status);
        VbDate remind = 0;
        due.is_date = 0;
        if (reminderOf(c, due, due, remind)) {
            task.RemindDate = FormatDate(remind, "yyyymmdd");
            task.RemindTime = FormatDate(remind, "hhnn");
        }
        result.tasks.push_back(task);
    }

    // 1 to 4 is urgent, 5 middling, 6 to 9 low; 0 or none, no priority.
    static std::string priorityText(icalcomponent* c) {
        icalproperty* property = first(c, ICAL_PRIORITY_PROPERTY);
        const int priority = property != nullptr ? icalproperty_get_priority(property) : 0;
        if (priority >= 1 && priority <= 4) return "1";
        if (priority == 5) return "2";
        if (priority >= 6 && priority <= 9) return "3";
        return "";
    }

    static std::string statusText(icalcomponent* c, icalproperty_status status) {
        icalproperty* percent = first(c, ICAL_PERCENTCOMPLETE_PROPERTY);
        if (status == ICAL_STATUS_COMPLETED || first(c, ICAL_COMPLETED_PROPERTY) != nullptr ||
            (percent != nullptr && icalproperty_get_percentcomplete(percent) >= 100))
            return "Completed";
        if (status == ICAL_STATUS_INPROCESS) return "In Progress";
        return "Not Started";
    }

    VbDate from_;
    VbDate to_;
    bool ours_ = false;
    std::set<std::string> replaced_;
};

// Each calendar of the text: one, or several one after the other.
void forEachCalendar(icalcomponent* root, const std::function<void(icalcomponent*)>& action) {
    if (icalcomponent_isa(root) == ICAL_VCALENDAR_COMPONENT) {
        action(root);
        return;
    }
    for (icalcomponent* c = icalcomponent_get_first_component(root, ICAL_VCALENDAR_COMPONENT); c != nullptr;
         c = icalcomponent_get_next_component(root, ICAL_VCALENDAR_COMPONENT))
        action(c);
}

}  // namespace

bool ICalendarRepeats(const std::string& text) {
    const Component root(icalparser_parse_string(text.c_str()));
    if (!root) return false;
    bool repeats = false;
    forEachCalendar(root.get(), [&repeats](icalcomponent* calendar) {
        for (icalcomponent* c = icalcomponent_get_first_component(calendar, ICAL_VEVENT_COMPONENT); c != nullptr;
             c = icalcomponent_get_next_component(calendar, ICAL_VEVENT_COMPONENT))
            if (first(c, ICAL_RRULE_PROPERTY) != nullptr || first(c, ICAL_RDATE_PROPERTY) != nullptr) repeats = true;
    });
    return repeats;
}

ICalendarContents ReadICalendar(const std::string& text, VbDate repeatFrom, VbDate repeatTo) {
    Reader reader(repeatFrom, repeatTo);
    const Component root(icalparser_parse_string(text.c_str()));
    if (!root) return reader.result;
    forEachCalendar(root.get(), [&reader](icalcomponent* calendar) {
        reader.result.isCalendar = true;
        reader.Read(calendar);
    });
    return reader.result;
}

}  // namespace orbidex
