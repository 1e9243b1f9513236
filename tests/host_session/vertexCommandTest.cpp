#include "KdDbMlineStyle.h"
#include "SessionFixture.h"

#include "KdDbStub.h"
#include "handleText.h"
#include "mlineEdits.h"
#include "textCodec.h"

namespace {

using namespace orvex;

class VertexCommand : public SessionFixture {
protected:
    VertexCommand() {
        // Two walls that meet at 400,0, the first with a gap from 100 to 200 in both lines.
        EXPECT_FALSE(play("MLINE\nS\n20\n0,0\n400,0\n\nMLINE\n400,0\n400,300\n\n"
                          "-MLEDIT\nCA\n100,0\n200,0\n\n"));
        for (KdDbStub* const stub : core().blocks().modelSpace().entities) {
            m_names.push_back("#" + handleText(stub->handle));
        }
        m_printed.clear();
    }
    [[nodiscard]] const MlineContent& wall(std::size_t index) {
        m_content = contentOf(*core().blocks().modelSpace().entities[index]);
        return *m_content;
    }
    [[nodiscard]] bool wasTold(const std::wstring& words) const {
        return std::any_of(m_printed.begin(), m_printed.end(), [&](const std::wstring& line) {
            return line.find(words) != std::wstring::npos;
        });
    }

    std::vector<std::string> m_names;
    std::shared_ptr<const MlineContent> m_content;
};

TEST_F(VertexCommand, movesVerticesTogetherAndTellsLostGaps) {
    const std::string before = m_session->drawing().bytes();
    ASSERT_FALSE(play("MLVERTEX\n" + m_names[0] + "\n1\nT\n" + m_names[1] + "\n0\nM\n450,20\n"));
    EXPECT_EQ(wall(0).vertices[1].position, (KdGePoint3d{450, 20, 0}));
    EXPECT_EQ(wall(1).vertices[0].position, (KdGePoint3d{450, 20, 0}));
    EXPECT_FALSE(wasTold(L"gaps"));
    ASSERT_FALSE(play("U\nMLVERTEX\n" + m_names[0] + "\n1\nM\n@50,20\n"));
    EXPECT_EQ(wall(0).vertices[1].position, (KdGePoint3d{450, 20, 0}));
    ASSERT_FALSE(play("U\n"));
    EXPECT_EQ(m_session->drawing().bytes(), before);
    ASSERT_FALSE(play("MLVERTEX\n" + m_names[0] + "\n1\nM\n150,0\n"));
    EXPECT_TRUE(wasTold(L"2 gaps cut or gone"));
    ASSERT_FALSE(play("U\nSTRETCH\n390,-20\n410,20\n400,0\n150,0\n"));
    EXPECT_TRUE(wasTold(L"2 gaps cut or gone"));
    // One that is refused holds the others back.
    m_printed.clear();
    ASSERT_FALSE(
        play("U\nMLVERTEX\n" + m_names[0] + "\n1\nT\n" + m_names[1] + "\n0\nM\n400,300\n"));
    EXPECT_TRUE(wasTold(L"Nothing changed. multiline " + widen(m_names[1].substr(1))));
    EXPECT_EQ(m_session->drawing().bytes(), before);
}

TEST_F(VertexCommand, addsAndRemovesAndRefusesWhatIsntThere) {
    ASSERT_FALSE(play("MLVERTEX\n" + m_names[0] + "\n0\nA\n300,50\n"));
    ASSERT_EQ(wall(0).vertices.size(), 3U);
    EXPECT_EQ(wall(0).vertices[1].position, (KdGePoint3d{300, 50, 0}));
    // A pick names the vertex next to it.
    ASSERT_FALSE(play("MLVERTEX\n310,48 " + m_names[0] + "\n\nR\n"));
    EXPECT_EQ(wall(0).vertices.size(), 2U);
    const std::string before = m_session->drawing().bytes();
    for (const std::string& answers :
         {m_names[0] + "\n0\nR\n", m_names[0] + "\n7\n", m_names[0] + "\n0\nM\n400,0\n",
          std::string("#FFFF\n"), m_names[0] + "\n0\nM\n*CANCEL*\n"}) {
        ASSERT_FALSE(play("MLVERTEX\n" + answers)) << answers;
        EXPECT_EQ(m_session->drawing().bytes(), before) << answers;
    }
}

} // namespace
