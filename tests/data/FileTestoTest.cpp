// Comment and header texts.
#include "data/FileTesto.h"

#include "ScrivaniaProva.h"

namespace orvane::prova {
namespace {

using FileTestoTest = ProvaDati;

TEST_F(FileTestoTest, TextIsAnsiOnDisk) {
    ASSERT_TRUE(SalvaTesto(s, kFileHeader, "5 \xC2\xB5V\n\xE2\x82\xAC\r\n\xCE\xA9"));
    EXPECT_EQ(Prendi("Header.TXT"), "5 \xB5V\r\n\x80\r\n?");
    EXPECT_EQ(CaricaTesto(s, "header.txt"), "5 \xC2\xB5V\n\xE2\x82\xAC\n?");
    Metti("Test Comment.TXT", "a\r\nb\rc\nd");
    EXPECT_EQ(CaricaTesto(s, PercorsoCommento("")), "a\nb\nc\nd");
}

TEST_F(FileTestoTest, AnAbsentTextIsEmptyAndAnUnusableOneIsTold) {
    EXPECT_EQ(CaricaTesto(s, kFileHeader), "");
    EXPECT_TRUE(ambiente.riquadri.empty());
    Metti("Header.TXT", std::string((1 << 20) + 1, 'x'));
    EXPECT_FALSE(CaricaTesto(s, kFileHeader).has_value());
    EXPECT_EQ(Riquadro(), "Failed loading" + s.albero.DataRoot() + "Header.TXT");
    EXPECT_FALSE(SalvaTesto(s, kFileHeader, std::string(1 << 20, '\n')));
    EXPECT_EQ(Riquadro(), "The text is too long\rMax 1048576 characters");
    EXPECT_FALSE(SalvaTesto(s, PercorsoCommento("absent"), "x"));
    EXPECT_EQ(Riquadro(),
              "Cannot open file " + s.albero.DataRoot() + "Sweep\\absent\\Test Comment.TXT");
}

} // namespace
} // namespace orvane::prova
