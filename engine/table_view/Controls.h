#pragma once
// Plain models of the controls that the game reads and writes: position in twips, visibility,
// Tag, picture identifier, tool tip, caption, z-order. The Qt view only draws these.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "assets/Pictures.h"
#include "engine/table_view/TagText.h"

namespace petal {

enum class Container { Form, Picture1, Picture2, PicYakuShow };

struct Control {
    Container parent = Container::Form;
    int Left = 0, Top = 0, Width = 0, Height = 0;  // twips, relative to the container
    bool Visible = true;
    bool Enabled = true;
    TagText Tag;
    int ZOrder = 0;  // higher stands in front, within the container
};

struct Image : Control {
    PictureId Picture = NoPicture;
    // A card's text of the catalogue (cardToolTip), which lives as long as the program, or none.
    std::string_view ToolTipText;
    bool hasPicture() const { return Picture != NoPicture; }
    // No picture, Tag "-1", no tool tip: the empty state of every card place.
    void clearCard() {
        Picture = NoPicture;
        Tag = -1;
        ToolTipText = {};
    }
};

struct Shape : Control {
    std::uint32_t BorderColor = 0;  // blue-green-red
    int BorderWidth = 4;
};

struct FontSpec {
    std::string family = "MS Sans Serif";
    int points = 8;
    bool bold = false;
};

enum class Alignment { Left, Right, Center };

struct Label : Control {
    std::string Caption;
    std::uint32_t ForeColor = 0;  // blue-green-red
    FontSpec font;
    Alignment alignment = Alignment::Left;
};

struct PictureBox : Control {
    PictureId Picture = NoPicture;
};

struct Button : Control {
    std::string Caption;
};

struct ListBox : Control {
    std::vector<std::string> List;
    int ListIndex = -1;  // the selected line, -1 for none
    int TopIndex = 0;    // the line asked to stand at the top; the view scrolls as far as it can
    int ListCount() const { return static_cast<int>(List.size()); }
    void AddItem(std::string item) { List.push_back(std::move(item)); }
};

struct TextBox : Control {
    std::string Text;
};

}  // namespace petal
