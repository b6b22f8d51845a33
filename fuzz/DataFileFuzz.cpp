// Random bytes as the file of a table (the task file, the note list, a record
// file): loading, finding, new identifiers, deleting, adding and saving never fail,
// and a second save of what the first wrote changes nothing.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "FuzzProgram.h"
#include "controls/ListView.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "pim/ListAndDetails.h"
#include "pim/cNotes.h"
#include "pim/cTasks.h"

namespace {

std::string readFile(const std::string& file) {
    std::string bytes;
    orbidex::ReadWholeFile(file, bytes);
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    auto& folder = orbidex::test::StartFuzzInput().folder;
    orbidex::gStrDataPath = folder.Stored() + "\\";
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string file = orbidex::gStrDataPath + "D_tasks.dat";
    orbidex::WriteWholeFile(file, bytes);

    orbidex::glbTasks.init(file);
    const orbidex::cData& table = orbidex::glbTasks.Table();
    table.getUniqueID(file, orbidex::Today());
    orbidex::glbTasks.FindByID(table.Item(1).substr(0, 13));
    orbidex::glbTasks.CountActive();
    orbidex::ListView list;
    orbidex::glbTasks.Search(list, "a");
    orbidex::glbTasks.DisplayInListView(list, true);

    orbidex::glbTasks.SaveToFile();
    const std::string first = readFile(file);
    orbidex::glbTasks.LoadFromFile();
    orbidex::glbTasks.SaveToFile();
    if (readFile(file) != first) std::abort();

    orbidex::cTask task;
    task.SetDefault();
    task.details = "added";
    orbidex::glbTasks.Add(list, &task);
    long index = 0;
    orbidex::gCurrentTask = task;
    orbidex::glbTasks.Delete(index);
    orbidex::glbTasks.ReIndex();

    orbidex::WriteWholeFile(orbidex::gStrDataPath + "allnotes.dat", bytes);
    orbidex::glbNotes.init(orbidex::gStrDataPath + "allnotes.dat");
    orbidex::glbNotes.DisplayInListView(list);
    orbidex::glbNotes.Search(list, "a");

    orbidex::ReadRecords(bytes, orbidex::kFieldDelimiter, orbidex::kRecordDelimiter);
    return 0;
}
