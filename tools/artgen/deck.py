"""The 48 faces in catalogue order, four a month, and the back."""

import frame
import months_a
import months_b
import months_c

# Each month draws its four cards from one function: kind 0 to 3 is the card's place in
# its month, which is the catalogue's order.
_MONTHS = [months_a.january, months_a.february, months_a.march, months_a.april,
           months_b.may, months_b.june, months_b.july, months_b.august,
           months_c.september, months_c.october, months_c.november, months_c.december]


def face(index):
    month, kind = divmod(index, 4)
    return _MONTHS[month](kind)


def back():
    return frame.back()
