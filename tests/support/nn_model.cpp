#include "support/nn_model.h"

#include "support/model_disk.h"
#include "support/text_points.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tavo::model {

namespace {

constexpr int codeMissing = 53, codeConflict = 58, codeDenied = 75, codeOther = 0;

struct Failure {
    const char* Text;
    int Code;
};

Failure Failure_FromResult(int result)
{
    switch (result) {
    case 2:
    case 3:
    case 1026: return {"Missing", codeMissing};
    case 5:
    case 32: return {"Access Denied", codeDenied};
    case 123:
    case 183: return {"Name Conflict", codeConflict};
    default: return {"UnKnown", codeOther};
    }
}

std::string Letters_FromNumber(int number)
{
    std::string out;
    do {
        out.insert(out.begin(), static_cast<char>('a' + number % 26));
        number /= 26;
    } while (number >= 1);
    return out;
}

std::string Pad(const std::string& value, const std::string& fill, int digits)
{
    const auto wanted = static_cast<std::size_t>(digits < 0 ? 0 : digits);
    return wanted >= value.size() ? points::Right(fill + value, wanted) : value;
}

std::string Ascii_Shift(std::string text, char first, int by)
{
    for (char& c : text)
        if (c >= first && c < first + 26)
            c = static_cast<char>(c + by);
    return text;
}

int Letters_Value(const std::string& text)
{
    const std::string small = Ascii_Shift(text, 'A', 32);
    std::int64_t sum = 0;
    for (const char c : small)
        sum = sum * 26 + (c - 'a');
    return static_cast<int>(sum);
}

bool Holds(const std::string& text, const char* token)
{
    return text.find(token) != std::string::npos;
}

// One template with what is known of it before the first row.
struct Template {
    explicit Template(const std::string& text)
        : Text(text), Counter(Holds(text, "<#>")), OldName(Holds(text, "<ON>")),
          OldExt(Holds(text, "<OE>"))
    {
    }

    std::string Fill(const std::string& base, const std::string& ext,
                     const std::string& counter) const
    {
        std::string out = Text;
        if (OldName)
            out = Token_Replace(out, "<ON>", base);
        if (OldExt)
            out = Token_Replace(out, "<OE>", ext);
        if (Counter)
            out = Token_Replace(out, "<#>", counter);
        return out;
    }

    std::string Text;
    bool Counter, OldName, OldExt;
};

struct NewName {
    std::string Name, Ext;
};

class Run {
public:
    explicit Run(const NnTask& task);
    NnOutcome Execute();

private:
    void ChooseRows();
    void SinglePass();
    void TwoPasses();
    void RowAgainst(int blocker, int& i, NewName& made);
    bool MoveAside(int blocker, NewName& made);

    NewName Make(const Row& row) const;
    void Apply(const std::string& oldName, const std::string& newName, std::string& ext,
               const std::string& origName, int pos);
    int Rename(const Row& row, const std::string& oldName, const std::string& newName);
    bool BringsInForbidden(const Row& row, const std::string& oldName,
                           const std::string& newName) const;
    int Blocker(const std::string& name, const std::string& path) const;
    std::string CutForTemp(const std::string& name) const;
    Row& At(int pos) { return out_.Rows[static_cast<std::size_t>(pos - 1)]; }
    const Row& At(int pos) const { return out_.Rows[static_cast<std::size_t>(pos - 1)]; }
    int RowCount() const { return static_cast<int>(out_.Rows.size()); }

    const NnTask& task_;
    ModelDisk disk_;
    NnOutcome out_;
    Template name_, ext_;
    std::vector<int> rows_; // from index 1
    std::vector<bool> done_;
    std::vector<std::string> undoNames_;
    int counter_ = 0;
    bool failed_ = false;
    int errCode_ = 0;
    long long callsLeft_ = 0;
};

Run::Run(const NnTask& task)
    : task_(task), disk_(task), name_(task.NameTemplate), ext_(task.ExtTemplate)
{
    out_.Rows = task.Rows;
    for (Row& row : out_.Rows) {
        row.UndoName.clear();
        row.Errors.clear();
    }
    counter_ = Counter_Start(task.Start, task.Style);
    callsLeft_ = 2000 + 200LL * RowCount();
    ChooseRows();
}

void Run::ChooseRows()
{
    rows_ = {0};
    for (int pos = 1; pos <= RowCount(); ++pos)
        if (!task_.SelectedOnly || At(pos).Selected)
            rows_.push_back(pos);
    done_.assign(static_cast<std::size_t>(RowCount()) + 1, false);
}

NnOutcome Run::Execute()
{
    if (name_.Counter || ext_.Counter)
        TwoPasses();
    else
        SinglePass();
    out_.Files = disk_.Contents();
    return out_;
}

void Run::SinglePass()
{
    for (std::size_t i = 1; i < rows_.size(); ++i) {
        const int pos = rows_[i];
        const std::string oldName = At(pos).Name;
        NewName made = Make(At(pos));
        Apply(oldName, made.Name, made.Ext, oldName, pos);
    }
}

void Run::TwoPasses()
{
    undoNames_.assign(1, "");
    for (std::size_t i = 1; i < rows_.size(); ++i)
        undoNames_.push_back(At(rows_[i]).Name);

    const bool allRows = static_cast<int>(rows_.size()) - 1 == RowCount();
    const int count = static_cast<int>(rows_.size()) - 1;
    for (int i = 1; i <= count; ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (done_[at])
            continue;
        if (callsLeft_ <= 0) {
            out_.Endless = true;
            return;
        }
        const int pos = rows_[at];
        NewName made = Make(At(pos));
        Apply(At(pos).Name, made.Name, made.Ext, undoNames_[at], pos);
        if (errCode_ != codeConflict) {
            done_[at] = true;
            if (!failed_)
                ++counter_;
            continue;
        }
        int blocker = Blocker(made.Name, At(pos).Path);
        if (blocker != 0 && !At(blocker).Selected && !allRows)
            blocker = 0;
        if (blocker == 0)
            done_[at] = true;
        else
            RowAgainst(blocker, i, made);
    }
}

// The row at walk position `i` could not get its name because of the row
// `blocker` of its own list.
void Run::RowAgainst(int blocker, int& i, NewName& made)
{
    const auto at = static_cast<std::size_t>(i);
    const auto other = static_cast<std::size_t>(blocker);
    --out_.Errors;
    if (done_[other])
        return;
    if (task_.PreList == 1) {
        if (MoveAside(blocker, made)) {
            --i;
            --out_.Renamed;
        } else {
            done_[at] = true;
        }
        return;
    }
    const std::string orig = At(blocker).Name;
    Apply(orig, made.Name, made.Ext, orig, blocker);
    done_[other] = true;
    if (!failed_) {
        ++counter_;
        --i;
    }
}

bool Run::MoveAside(int blocker, NewName& made)
{
    const std::string orig = At(blocker).Name;
    const std::string undo = At(blocker).UndoName.empty() ? orig : At(blocker).UndoName;
    std::string temp = "0" + CutForTemp(orig);
    for (int k = 1; k <= 9; ++k) {
        Apply(orig, temp, made.Ext, undo, blocker);
        if (!failed_)
            break;
        --out_.Errors;
        temp = std::to_string(k) + CutForTemp(orig);
    }
    return !failed_;
}

std::string Run::CutForTemp(const std::string& name) const
{
    return task_.System == Dialect::Linux ? points::RightBytes(name, 253)
                                          : points::Right(name, 253);
}

NewName Run::Make(const Row& row) const
{
    const auto point = row.Name.rfind('.');
    const bool split = point != std::string::npos;
    const std::string base = row.Name.substr(0, point);
    const std::string ext = split ? row.Name.substr(point + 1) : "";
    const std::string counter = Counter_Text(counter_, task_.Style, task_.Digits);
    NewName made{name_.Fill(base, ext, counter), ext_.Fill(base, ext, counter)};
    if (!made.Ext.empty())
        made.Name += "." + made.Ext;
    return made;
}

// One rename of the row at `pos` from `oldName`. The names lie in the row's
// own folder.
void Run::Apply(const std::string& oldName, const std::string& newName, std::string& ext,
                const std::string& origName, int pos)
{
    --callsLeft_;
    if (newName == origName) {
        ++out_.Unnecessary;
        return;
    }
    failed_ = false;
    errCode_ = 0;
    Row& row = At(pos);
    const int result = Rename(row, oldName, newName);
    if (result == 0) {
        if (task_.FolderMode)
            ext = "-";
        row.Name = newName;
        row.Type = ext;
        row.UndoName = origName;
        row.Errors.clear();
        ++out_.Renamed;
        return;
    }
    const Failure failure = Failure_FromResult(result);
    row.Errors = failure.Text;
    errCode_ = failure.Code;
    failed_ = true;
    ++out_.Errors;
}

int Run::Rename(const Row& row, const std::string& oldName, const std::string& newName)
{
    if (task_.System == Dialect::Linux && BringsInForbidden(row, oldName, newName))
        return 123;
    const bool caseOnly = points::SameBlind(oldName, newName);
    if (disk_.Exists(row.Path, newName) && !caseOnly)
        return 123;
    return disk_.Rename(row.Path, oldName, newName);
}

bool Run::BringsInForbidden(const Row& row, const std::string& oldName,
                            const std::string& newName) const
{
    for (const char c : std::string("\\:*?\"<>|")) {
        const bool known =
            oldName.find(c) != std::string::npos || row.UndoName.find(c) != std::string::npos;
        if (!known && newName.find(c) != std::string::npos)
            return true;
    }
    return false;
}

// The list position of the row that holds `name` in `path`; 0 for none. On
// Linux the row that holds it exactly goes before those that match in another
// case.
int Run::Blocker(const std::string& name, const std::string& path) const
{
    int first = 0;
    for (int pos = 1; pos <= RowCount(); ++pos) {
        const Row& row = At(pos);
        if (row.Path != path || !points::SameBlind(row.Name, name))
            continue;
        if (task_.System == Dialect::Windows || row.Name == name)
            return pos;
        if (first == 0)
            first = pos;
    }
    return first;
}

} // namespace

std::string Counter_Text(int value, int style, int digits)
{
    if (style == 1)
        return Pad(std::to_string(value), "00000000", digits);
    const std::string small = Pad(Letters_FromNumber(value), "aaaaaaaa", digits);
    return style == 3 ? Ascii_Shift(small, 'a', -32) : small;
}

int Counter_Start(const std::string& text, int style)
{
    if (style != 1)
        return Letters_Value(text);
    double value = 0;
    const auto begin = text.find_first_not_of(' ');
    if (begin != std::string::npos)
        std::from_chars(text.data() + begin, text.data() + text.size(), value);
    const double whole = std::nearbyint(value);
    if (std::abs(whole) > std::numeric_limits<std::int32_t>::max())
        return 0;
    return static_cast<int>(whole);
}

std::string Token_Replace(std::string text, const std::string& token, const std::string& value)
{
    constexpr std::size_t longest = 32767;
    const std::string wanted = points::Upper(token);
    std::size_t from = 0;
    while (text.size() <= longest) {
        // Tokens are plain letters, so folding keeps every place in the text
        // as long as only those are folded.
        const std::string folded = Ascii_Shift(text, 'a', -32);
        from = folded.find(wanted, from);
        if (from == std::string::npos)
            break;
        const std::string before = text;
        text = text.substr(0, from) + value + text.substr(from + token.size());
        if (text == before)
            break;
    }
    return text;
}

NnOutcome Nn_Model_Run(const NnTask& task)
{
    return Run(task).Execute();
}

} // namespace tavo::model
