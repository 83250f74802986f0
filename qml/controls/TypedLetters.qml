import QtQuick

// The letters that are typed to find a row; a pause begins anew.
Timer {
    id: typed

    property string letters

    // Look for a row that begins with the letters. A single letter goes on behind the current row, more of them may still
    // match it.
    signal wanted(string letters)

    interval: 1000

    // Whether the key was one to find a row by.
    function take(event): bool {
        const modified = event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier);
        const isLetter = event.text > " " && event.text !== "\x7f";
        if (modified || !(isLetter || event.text === " " && running))
            return false;
        // The same letter again walks through the rows that begin with it.
        if (!running)
            letters = event.text;
        else if (letters !== event.text)
            letters += event.text;
        restart();
        wanted(letters);
        return true;
    }
}
