// SPDX-License-Identifier: MIT
// render_item: draws the item's picture with the program's own code, for the tests to look for on a
// screen. It answers each line of its input at once. A line has seven fields, with tabs between
// them:
//   the form        "wide", "line" or "square"
//   its size        pixels a point where it is wide, pixels a side where it is square
//   the font's size points
//   the pressure    the number of the level
//   the appearance  "light" or "dark"
//   CPU and RAM     the texts of their values, as StatusText.h pads them
// The answer is the picture's width and height in pixels in a line of text, and then its pixels:
// rows without padding, each pixel alpha, red, green and blue, not premultiplied. Where a line asks
// for no picture, the program ends with status 1.
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "platform/qt/drawing/QtTextMeasure.h"
#include "platform/qt/drawing/RenderImage.h"
#include "platform/qt/statusitem/forms/Forms.h"
#include "sampling/MemoryPressure.h"
#include "statusitem/SquareImage.h"
#include "statusitem/StatusImage.h"

namespace {

using namespace zephrine;

/// What the forms without text go by; absent where the text has no number.
std::optional<double> percent(const std::string& text) {
    const auto number = text.find_first_of("0123456789");
    return number == std::string::npos ? std::nullopt
                                       : std::optional(std::strtod(&text[number], nullptr));
}

NotifierPixmaps picture(const std::vector<std::string>& fields) {
    const std::string& form = fields[0];
    const double size = std::stod(fields[1]);
    const bool isDark = fields[4] == "dark";
    const auto pressure = memoryPressure(std::stoi(fields[3]));
    const StatusContent content{.cpuText = fields[5],
                                .ramText = fields[6],
                                .cpuPercent = percent(fields[5]),
                                .ramPercent = percent(fields[6]),
                                .fontSize = std::stod(fields[2]),
                                .dot = color(pressure.value()),
                                .isDark = isDark};
    const QtTextMeasure measure;
    const StatusItemImage image{
        .wide = statusImage(content, measure),
        .line = [&] { return lineImage(content, measure); },
        .appearance = isDark ? Appearance::darkAqua : Appearance::aqua,
    };
    if (form == "line") {
        PictureFiles nowhere{QString()};
        return faceForHost(HostForm::line, image, nowhere).pixmaps;
    }
    NotifierPixmaps pixmaps;
    addPixmap(pixmaps, form == "square"
                           ? renderImage(squareImage(content, size, measure), 1, image.appearance)
                           : renderImage(image.wide, size, image.appearance));
    return pixmaps;
}

std::vector<std::string> split(const std::string& line) {
    std::vector<std::string> fields;
    std::istringstream rest(line);
    for (std::string field; std::getline(rest, field, '\t');) {
        fields.push_back(field);
    }
    return fields;
}

bool answer(const std::string& line) {
    const auto fields = split(line);
    if (fields.size() != 7) {
        return false;
    }
    const NotifierPixmaps pixmaps = picture(fields);
    if (pixmaps.size() != 1) {
        return false;
    }
    const NotifierPixmap& pixmap = pixmaps.first();
    std::cout << pixmap.width << ' ' << pixmap.height << '\n';
    std::cout.write(pixmap.argb.data(), pixmap.argb.size()).flush();
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    for (std::string line; std::getline(std::cin, line);) {
        if (!answer(line)) {
            std::fprintf(stderr, "no picture: %s\n", line.c_str());
            return 1;
        }
    }
    return 0;
}
