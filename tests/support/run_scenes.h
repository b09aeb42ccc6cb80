#pragma once

#include "support/run_ground.h"

#include <set>
#include <string>
#include <vector>

namespace tavo {

// One action over a handful of rows in which names stand in each other's way:
// ground for faults, cancels and other troubles at every step.
struct RunScene {
    const char* Name;
    int Mode;
    int Action;
    void (*Prepare)(RunGround& ground);

    // Can an undo bring everything back?
    bool IsUndone() const;
    bool Deletes() const;
    bool Copies() const;
    bool WritesTags() const;
};

extern const std::vector<RunScene> runScenes;

// Puts the files and rows of the scene there and makes all ready to act.
void Scene_SetUp(const RunScene& scene, RunGround& ground);

// What must hold however an action of the scene ended.
class SceneJudge {
public:
    // Behind Scene_SetUp.
    SceneJudge(const RunScene& scene, RunGround& ground);
    // The action ran undisturbed, on a ground of the same kind: the names that
    // it gives are the ones that files may have.
    void LearnNames(const FolderState& after);

    const FolderState& Before() const { return before_; }
    // Empty, or what is wrong: every file is there, whole and once, under its
    // old, its new or a temporary name, and every row shows its own file.
    std::string Complaint(RunGround& ground) const;
    // The same without the rows.
    std::string FilesComplaint(RunGround& ground) const;
    // Empty, or how the files differ from those before the run, as far as an
    // undo brings them back.
    std::string ComplaintAfterUndo(RunGround& ground, bool attributesCount = true,
                                   bool timesCount = true) const;

private:
    std::string RowsComplaint(RunGround& ground, const FolderState& now) const;
    std::string FileComplaint(const std::string& path, const FileState& file,
                              const FolderState& now) const;
    bool IsWhole(const FileState& before, const FileState& now) const;
    bool IsGoodName(const std::string& was, const std::string& now) const;

    const RunScene& scene_;
    FolderState before_;
    std::vector<std::string> rows_;
    std::set<std::string> chosen_, names_;
};

} // namespace tavo
