#pragma once

#include "support/list_ground.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavo {

// Test cases that run in the dialect of Windows and in that of Linux.
inline const auto bothDialects =
    ::testing::Values(MemoryDisk::Flavour::Windows, MemoryDisk::Flavour::Posix);
inline std::string Dialect_Name(const ::testing::TestParamInfo<MemoryDisk::Flavour>& info)
{
    return info.param == MemoryDisk::Flavour::Windows ? "Windows" : "Linux";
}

// A list of files a.txt, b.txt ... in folder d, in Name & Number with a
// template that gives each row a name of its own.
class ListRun : public ::testing::TestWithParam<MemoryDisk::Flavour> {
protected:
    ListRun() : ground(GetParam()), p(ground.P), f(ground.Main), s(ground.P.state) {}

    static void LoadInto(MemoryListGround& where, int count)
    {
        std::vector<std::string> paths;
        for (int i = 0; i < count; ++i)
            paths.push_back("d/" + std::string(1, static_cast<char>('a' + i)) + ".txt");
        where.Load(paths);
        where.SetTemplates("x<ON>", "<OE>");
    }

    void LoadRows(int count) { LoadInto(ground, count); }
    void SelectRows(const std::vector<int>& rows) { ground.Select(rows); }
    std::string Stage() const { return f.lblActionInfo[0].Caption; }
    std::string Label(int k) const { return f.lblAction[k].Caption; }
    std::string Value(int k) const { return f.lblActionInfo[k].Caption; }
    std::string ErrorsHeader() const { return ground.List.Column(s.colErrors).Caption; }

    MemoryListGround ground;
    Program& p;
    FrmMain& f;
    SharedState& s;
};

} // namespace tavo
