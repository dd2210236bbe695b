// SPDX-License-Identifier: GPL-3.0-or-later
#include "RealProgram.h"
#include "Report.h"

#include <optional>

namespace Quillbox::Bench {

namespace {

constexpr int Steps = 100;
constexpr std::size_t SmallFile = 2000;
constexpr Goal OneFrame{Goal::Direction::AtMost, 16.0};
constexpr Goal Fluid{Goal::Direction::AtMost, 50.0};
constexpr Goal Memory{Goal::Direction::AtMost, 1000.0};

} // namespace

void MeasureDocuments() {
    RealProgram real(SameFiles(DocumentRegistry::Capacity, SourceText(SmallFile)));
    Program &program = real.Whole;
    const QString previous = QStringLiteral("mnuVentana_Anterior");
    const double before = ResidentBytes();
    MillisecondsOf(program.Main(), OpenCommand, DocumentRegistry::Capacity - Steps);
    Print("Opening one of the last 100 of 1000 documents",
          MillisecondsOf(program.Main(), OpenCommand, Steps), "ms", Fluid);
    Print("Going to another of 1000 documents", MillisecondsOf(program.Main(), previous, Steps),
          "ms", OneFrame);
    Print("Memory for each of 1000 documents",
          (ResidentBytes() - before) / DocumentRegistry::Capacity / 1000, "KB", Memory);
}

/// With the scans for functions and types that the program makes when it opens a file.
void MeasureOpeningInTheProgram(double reading) {
    const std::vector<QString> file = SameFiles(1, SourceText(LargeText));
    std::optional<RealProgram> real;
    const double opening = ShortestTime(
        3, [&] { MillisecondsOf(real->Whole.Main(), OpenCommand, 1); },
        [&] { real.emplace(file); });
    Print({"Opening 100 MB of source in the whole program, against reading the file",
           opening,
           reading,
           "s",
           {Goal::Direction::AtMost, 10}});
}

} // namespace Quillbox::Bench
