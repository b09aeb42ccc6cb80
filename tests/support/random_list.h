#pragma once

#include "support/memory_disk.h"
#include "support/nn_model.h"

#include <cstdint>
#include <string>

namespace tavo::model {

// A random Name & Number run for property tests: small, and full of what goes
// wrong. Rows whose names are other rows' targets (chains, swaps, at random),
// files of such names outside the list or outside the selection, temporary
// names that are taken, names that differ in case, equal names in several
// folders, a file that stands in the list twice, missing files, files in use,
// locked folders, names of the greatest length, folders within folders. The
// same seed gives the same task on every machine.
NnTask Random_Task(std::uint32_t seed, Dialect system);

// The kind of disk that the task is meant for, and its files on it: each file
// with the text of its number, each folder with a file of that text inside.
MemoryDisk::Flavour Task_Flavour(const NnTask& task);
void Task_ToDisk(const NnTask& task, MemoryDisk& disk);
// What lies on such a disk now, as the model tells it.
Disk Task_FromDisk(const NnTask& task, const MemoryDisk& disk);

// The task, and what came of it, as text for a failing test.
std::string Task_Text(const NnTask& task);
std::string Outcome_Text(const NnOutcome& outcome);

} // namespace tavo::model
