#include <gtest/gtest.h>

#include "form/options_file.h"
#include "form/write_options.h"
#include "toolkit/window/application.h"

namespace zev {
namespace {

constexpr std::string_view wholeFile =
    R"(' ***************************************************************************************
' **       MODIFYING OR DELETING THIS FILE MAY PREVENT ZEV FROM WORKING PROPERLY       **
' ***************************************************************************************

' This contains the values you selected on the OPTIONS menu, local settings, and some diagnostic data
'Program version: 2.0.0

Name=Joe Smith                       'User name
Number=12345                         'User's ACBL ID number
Mono=0                               'forced Monochrome printing: 0=no, 1=yes
Color=1                              'forced Color printing: 0=no, 1=yes
Zoom=4                               'Zoom level.  If out of range, a valid default will be used
Fit=2                                'Fit to screen: 1=width; 2=height; 0=use zoom level
FontSize=3                           'Small text font control: 0=normal; 1=smaller, 2=larger, 3=big
Bold=1                               'Use Boldface by default: 0=no; 1=yes
PrintAlt=0                           'Use secondary print method (if primary prints blank pages): 0=no; 1=yes
Printer=Print to PDF                 'Printer
PaperBin=7                           'Paper Tray

Normalfont=Arial                     'Normal text font.  Change at your own risk.
Narrowfont=Arial Narrow              'Narrow text font.  Change at your own risk.
Symfont=Wingdings                    'Marks font.  Just for checkmarks and circles.  Do not change.
Suitfont=Symbol                      'Suits font.  Do not change.

Fillincheckmarks=1                   'Use checkmarks or filled-in squares: 0=checkmarks (default), 1=filled-in
ColorScheme=16777215                 'Global color scheme: 0=ACBL, 1=Black, 2-16777215=actual value
Trace=1                              'Trace program activities to a disk file (troubleshooting): 0=no, 1=yes

' Environment information (technical stuff for problem solving)...
'   Printer:
'     DeviceName:        Print to PDF
'     hdc:               1 
'     ColorMode:         2 
'     Copies             1 
'     Height:            15840 
'     ScaleHeight:       15360.5 
'     Width:             12240 
'     ScaleWidth:        11760 
'     Orientation:       1 
'     PaperBin:          7 
'     PaperSize:         1 
'     TwipsX:            2.4 

'   Myprinter:
'     Devicename:        Laser
'     hdc:              -25 
'     BitsPerPixel:      24 
'     PageHeightInches:  10.67 
'     PageWidthInches:   8.17 
'     PixPerInchx:       600 
'     PaperBin:          2 

'  Other:
'    Windows version:    6.1, Build 0, Platform 2, SP 0.0
'    Screen resolution:  19200  15360  15  /  1280  *  1024 
'    Actual twips:       15  *  14.4 
'    Application path:   /opt/zevlin
'    Documents path:     /home/joe/ZEV
'    Current path:       /home/joe
'    Physical Memory:    3964 MB
'    Total Memory:       0 MB
'    Memory Load:        45%
'    Curr Memory usage:  61,234,567
'    Peak Memory usage:  999
)";

std::string withCarriageReturns(std::string_view text) {
    std::string lines;
    for (const char character : text) {
        if (character == '\n') lines += '\r';
        lines += character;
    }
    return lines;
}

toolkit::Printer currentPrinter() {
    toolkit::Printer printer;
    printer.DeviceName = "Print to PDF";
    printer.hdc = 1;
    printer.Height = 15840;
    printer.ScaleHeight = 15360.5F;
    printer.Width = 12240;
    printer.ScaleWidth = 11760;
    printer.PaperBin = 7;
    printer.TwipsPerPixelX = 2.4F;
    return printer;
}

PrinterFacts keptPrinter() {
    PrinterFacts facts;
    facts.Devicename = "Laser";
    facts.hdc = -25;
    facts.BitsPerPixel = 24;
    facts.PageHeightInches = 10.67F;
    facts.PageWidthInches = 8.17F;
    facts.PixPerInchx = 600;
    facts.PaperBin = 2;
    return facts;
}

void describeMachine(OptionsDocument& document) {
    document.printer = currentPrinter();
    document.facts = keptPrinter();
    document.systemVersion = "6.1, Build 0, Platform 2, SP 0.0";
    document.screenWidth = 19200;
    document.screenHeight = 15360;
    document.actualTwipsY = 14.4F;
    document.applicationPath = "/opt/zevlin";
    document.documentsPath = "/home/joe/ZEV";
    document.currentPath = "/home/joe";
    document.memory = {.physicalBytes = 4156500000, .pageFileBytes = 524287, .loadPercent = 45};
    document.memoryLoad = "45%";
    document.usage = {.current = 61234567, .peak = 999};
}

OptionsDocument fullDocument() {
    OptionsDocument document;
    document.programVersion = "2.0.0";
    document.name = "Joe Smith";
    document.number = "12345";
    document.color = true;
    document.zoom = 4;
    document.fit = 2;
    document.fontSize = 3;
    document.bold = true;
    document.normalFont = "Arial";
    document.narrowFont = "Arial Narrow";
    document.markFont = "Wingdings";
    document.suitFont = "Symbol";
    document.fillIn = true;
    document.colorScheme = 16777215;
    document.trace = true;
    describeMachine(document);
    return document;
}

/// The line of a file that begins with the text.
std::string lineOf(const OptionsDocument& document, std::string_view beginning) {
    const std::string file = writeOptions(document);
    const auto start = file.find("\r\n" + std::string(beginning));
    if (start == std::string::npos) return "absent";
    return file.substr(start + 2, file.find("\r\n", start + 2) - start - 2);
}

TEST(WriteOptions, WritesTheFileByteForByte) {
    EXPECT_EQ(writeOptions(fullDocument()), withCarriageReturns(wholeFile));
}

TEST(WriteOptions, LeavesOutAnEmptyNameAndNumber) {
    OptionsDocument document = fullDocument();
    document.name = document.number = "";
    EXPECT_EQ(lineOf(document, "Name="), "absent");
    EXPECT_EQ(lineOf(document, "Number="), "absent");
}

TEST(WriteOptions, MovesTheCommentsBehindALongName) {
    OptionsDocument document = fullDocument();
    document.name = std::string(35, 'x');
    EXPECT_EQ(lineOf(document, "Name="), "Name=" + document.name + "  'User name");
    EXPECT_EQ(lineOf(document, "Zoom=").find('\''), 42U);
    EXPECT_EQ(lineOf(document, "Trace=").find('\''), 42U);
}

TEST(WriteOptions, KeepsTheColumnForANameThatJustFits) {
    OptionsDocument document = fullDocument();
    document.name = std::string(30, 'x');
    EXPECT_EQ(lineOf(document, "Name=").find('\''), 37U);
    EXPECT_EQ(lineOf(document, "Zoom=").find('\''), 37U);
}

TEST(WriteOptions, ALongNumberMovesNothing) {
    OptionsDocument document = fullDocument();
    document.number = std::string(40, '1');
    EXPECT_EQ(lineOf(document, "Number="),
              "Number=" + document.number + "  'User's ACBL ID number");
    EXPECT_EQ(lineOf(document, "Zoom=").find('\''), 37U);
}

TEST(WriteOptions, LeavesOutAPrinterThatReachesTheComments) {
    OptionsDocument document = fullDocument();
    document.printer.DeviceName = std::string(26, 'p');
    EXPECT_EQ(lineOf(document, "Printer="),
              "Printer=" + document.printer.DeviceName + "   'Printer");
    document.printer.DeviceName = std::string(27, 'p');
    EXPECT_EQ(lineOf(document, "Printer="), "absent");
    EXPECT_EQ(lineOf(document, "PaperBin=").substr(0, 10), "PaperBin=7");
}

TEST(WriteOptions, WritesALongPrinterBehindALongerName) {
    OptionsDocument document = fullDocument();
    document.name = std::string(50, 'x');
    document.printer.DeviceName = std::string(27, 'p');
    EXPECT_EQ(lineOf(document, "Printer=").substr(0, 35), "Printer=" + document.printer.DeviceName);
}

TEST(WriteOptions, WritesMinusOneForANegativeColorScheme) {
    OptionsDocument document = fullDocument();
    document.colorScheme = -77;
    EXPECT_EQ(lineOf(document, "ColorScheme=").substr(0, 15), "ColorScheme=-1 ");
}

} // namespace
} // namespace zev
