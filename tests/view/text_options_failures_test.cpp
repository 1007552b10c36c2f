// Failures of the whole-card options: each is traced with its command's name, and nobody is told.
#include <cstddef>
#include <new>
#include <utility>

#include "app/layouts.h"
#include "layout/write_layout.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "view/text_options.h"

namespace {

/// From so many bytes on no memory is to be had; 0 for no limit.
std::size_t scarceFrom = 0;

constexpr std::align_val_t blockAlignment{alignof(std::max_align_t)};

} // namespace

// All memory of this program comes from here.
void* operator new(std::size_t size) {
    if (scarceFrom > 0 && size >= scarceFrom) throw std::bad_alloc();
    return ::operator new(size, blockAlignment);
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
void operator delete(void* memory) noexcept { ::operator delete(memory, blockAlignment); }
void operator delete(void* memory, std::size_t /*size*/) noexcept {
    ::operator delete(memory, blockAlignment);
}

namespace zev::test {
namespace {

using Command = void (*)(Zevlin&);

class TextOptionsFailures : public FormTest {
  protected:
    TextOptionsFailures() { writeLayout(fewFields()); }
    /// Runs the command where design mode can't be left.
    void runInStuckDesignMode(Command command) {
        const auto toggle = std::exchange(form.Slots.toggleDesignMode, [] {
            throw toolkit::RunTimeError(toolkit::Failure::Overflow);
        });
        command(form);
        form.Slots.toggleDesignMode = toggle;
    }
    void design() {
        start();
        toolkit::test::typeKey('D', toolkit::shift::shift | toolkit::shift::ctrl);
        ASSERT_TRUE(form.MShowShapes.Checked);
    }
};

TEST_F(TextOptionsFailures, OfEachTextSizeAreTracedAndTheLayoutComesBack) {
    design();
    const std::string layout = dataFileContent("Definitions.Ini");
    const std::pair<Command, std::string> sizes[] = {{mSmallerTextFont_Click, "MSmallerTextFont"},
                                                     {mNormalTextFont_Click, "mNormalTextFont"},
                                                     {mLargerTextFont_Click, "mLargerTextFont"},
                                                     {mBigTextFont_Click, "mBigTextFont"}};
    for (const auto& [command, name] : sizes) {
        const std::string line = "Error in " + name + "_Click: #6, Overflow";
        announceError(line);
        form.AMark[1].Left += pixel;
        runInStuckDesignMode(command);
        EXPECT_TRUE(traced(line)) << name;
        EXPECT_TRUE(form.MShowShapes.Checked) << name;
        EXPECT_EQ(dataFileContent("Definitions.Ini"), layout) << name;
        EXPECT_FALSE(std::filesystem::exists(dataFile("$$TempDef.Ini"))) << name;
    }
    EXPECT_TRUE(boxes.empty());
}

TEST_F(TextOptionsFailures, OfFilledInSquaresAreTraced) {
    design();
    announceError("Error in RebuildScreenImage: #6, Overflow");
    announceError("Error in mFillIn_Click: #6, Overflow");
    runInStuckDesignMode(mFillIn_Click);
    EXPECT_TRUE(traced("Error in mFillIn_Click: #6, Overflow"));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(TextOptionsFailures, OfBoldfaceAndLeftJustifyAreTraced) {
    start();
    constexpr std::size_t much = 10'000'000;
    form.AText[1].Tag.assign(much, 'n');
    const std::pair<Command, std::string> commands[] = {{mBold_Click, "mBold_Click"},
                                                        {mLeftJustify_Click, "mLeftJustify_Click"}};
    for (const auto& [command, name] : commands) {
        const std::string line = "Error in " + name + ": #7, Out of memory";
        announceError(line);
        scarceFrom = much;
        command(form);
        scarceFrom = 0;
        EXPECT_TRUE(traced(line)) << name;
    }
    EXPECT_TRUE(form.mBold.Checked);
    EXPECT_TRUE(form.mLeftJustify.Checked);
    EXPECT_TRUE(boxes.empty());
}

} // namespace
} // namespace zev::test
