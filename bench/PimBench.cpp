// The task file and the note list at their everyday work: loading and saving 5,000
// tasks, and 2,000 notes with their body files; each beside a plain copy of the same
// files in this program, the floor that reading and writing them costs.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <vector>

#include "BenchProgram.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "pim/cNotes.h"
#include "pim/cTasks.h"

namespace {

constexpr int kTasks = 5000;
constexpr int kNotes = 2000;

// A program with its data folder holding 5,000 tasks and 2,000 notes, the clock at
// 2004-06-05 09:30:12, nothing logged.
class PimProgram : public orbidex::bench::BenchProgram {
public:
    PimProgram() {
        platform_.SetRandomValues({0.13, 0.71, 0.42, 0.98, 0.05, 0.66, 0.27, 0.84});
        orbidex::gLogLevel = -2;
        writeTasks();
        writeNotes();
        orbidex::glbTasks.init(TasksFile());
        orbidex::glbNotes.init(NotesFile());
    }

    static std::string TasksFile() { return orbidex::gStrDataPath + "D_tasks.dat"; }
    static std::string NotesFile() { return orbidex::gStrDataPath + "allnotes.dat"; }
    static std::string BodyName(int i) { return "Note number " + std::to_string(i) + ".txt"; }

private:
    // The lines are made with "|" where each field's closing byte 0x1F goes.
    static void writeTasks() {
        std::string bytes;
        for (int i = 0; i < kTasks; ++i) {
            char line[256];
            const int day = 1 + i % 28;
            std::snprintf(line, sizeof line,
                          "N200406%02d%04d|200406%02d|Work|%02d%02d|60|Phone|fred||Job %d|||%d|%s|Office|"
                          "Call the supplier about order %d|\r\n",
                          day, 1 + i / 28, day, 8 + i % 10, (i * 7) % 60, i, i % 3, i % 4 ? "" : "Done", i);
            bytes += line;
        }
        orbidex::WriteWholeFile(TasksFile(), orbidex::Replace(bytes, "|", orbidex::kFieldDelimiter));
    }
    static void writeNotes() {
        orbidex::MakeFolder(orbidex::NotesFolder());
        std::string bytes;
        for (int i = 0; i < kNotes; ++i) {
            const std::string name = BodyName(i);
            char line[192];
            std::snprintf(line, sizeof line, "N200406%02d%04d|20040601|20040605||Yellow|Home|%s|%s|\r\n", 1 + i % 28,
                          1 + i / 28, name.c_str(), name.substr(0, name.size() - 4).c_str());
            bytes += line;
            std::string body;
            for (int k = 0; k < 20; ++k) body += "Line " + std::to_string(k) + " of the text of the note\r\n";
            orbidex::WriteWholeFile(orbidex::NotesFolder() + name, body);
        }
        orbidex::WriteWholeFile(NotesFile(), orbidex::Replace(bytes, "|", orbidex::kFieldDelimiter));
    }
};

benchmark::Counter perUnit(double units) {
    return benchmark::Counter(units, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void copyFile(const std::string& from, const std::string& to) {
    std::string bytes;
    orbidex::ReadWholeFile(from, bytes);
    orbidex::WriteWholeFile(to, bytes);
}

void BM_LoadTasks(benchmark::State& state) {
    PimProgram program;
    for (auto _ : state) orbidex::glbTasks.LoadFromFile();
    state.counters["time_per_task"] = perUnit(kTasks);
}

void BM_SaveTasks(benchmark::State& state) {
    PimProgram program;
    for (auto _ : state) orbidex::glbTasks.SaveToFile();
    state.counters["time_per_task"] = perUnit(kTasks);
}

// The floor: the task file read and written whole, as bytes.
void BM_CopyTaskFile(benchmark::State& state) {
    PimProgram program;
    for (auto _ : state) copyFile(PimProgram::TasksFile(), PimProgram::TasksFile() + ".copy");
    state.counters["time_per_task"] = perUnit(kTasks);
}

// The note list and the text of every note.
void BM_LoadNotesWithBodies(benchmark::State& state) {
    PimProgram program;
    orbidex::cNote note;
    for (auto _ : state) {
        orbidex::glbNotes.LoadFromFile();
        for (long i = 0; i <= orbidex::glbNotes.Count(); ++i) {
            if (!note.CreateNoteFromTextLine(orbidex::glbNotes.Table().Item(i), orbidex::kFieldDelimiter)) continue;
            note.details = note.LoadDetails();
        }
    }
    state.counters["time_per_note"] = perUnit(kNotes);
}

void BM_SaveNotesWithBodies(benchmark::State& state) {
    PimProgram program;
    std::vector<orbidex::cNote> notes(kNotes);
    for (int i = 0; i < kNotes; ++i) {
        notes[static_cast<size_t>(i)].CreateNoteFromTextLine(orbidex::glbNotes.Table().Item(i),
                                                             orbidex::kFieldDelimiter);
        notes[static_cast<size_t>(i)].details = notes[static_cast<size_t>(i)].LoadDetails();
    }
    for (auto _ : state) {
        orbidex::glbNotes.SaveToFile();
        for (orbidex::cNote& note : notes) note.SaveDetails(note.details);
        state.PauseTiming();
        for (orbidex::cNote& note : notes) note.details.resize(note.details.size() - 2);  // the line end a save adds
        state.ResumeTiming();
    }
    state.counters["time_per_note"] = perUnit(kNotes);
}

// The floor: the note list and every body file read and written whole, as bytes.
void BM_CopyNoteFiles(benchmark::State& state) {
    PimProgram program;
    for (auto _ : state) {
        copyFile(PimProgram::NotesFile(), PimProgram::NotesFile() + ".copy");
        for (int i = 0; i < kNotes; ++i) {
            const std::string body = orbidex::NotesFolder() + PimProgram::BodyName(i);
            copyFile(body, body);
        }
    }
    state.counters["time_per_note"] = perUnit(kNotes);
}

}  // namespace

BENCHMARK(BM_LoadTasks)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveTasks)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CopyTaskFile)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LoadNotesWithBodies)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveNotesWithBodies)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CopyNoteFiles)->Unit(benchmark::kMillisecond);
