<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>CMlStyleLoadDlg</name>
    <message>
        <source>Load Multiline Style</source>
        <translation>Multilinienstil laden</translation>
    </message>
    <message>
        <source>File...</source>
        <translation>Datei...</translation>
    </message>
    <message>
        <source>ORVEX.mln</source>
        <translation>ORVEX.mln</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>CMlineStyleDialog</name>
    <message>
        <source>Multiline Style</source>
        <translation>Multilinienstil</translation>
    </message>
    <message>
        <source>Current Multiline Style:</source>
        <translation>Aktueller Multilinienstil:</translation>
    </message>
    <message>
        <source>STANDARD</source>
        <translation>STANDARD</translation>
    </message>
    <message>
        <source>Styles:</source>
        <translation>Stile:</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Set C&amp;urrent</source>
        <translation>&amp;Aktuell setzen</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Neu...</translation>
    </message>
    <message>
        <source>&amp;Modify...</source>
        <translation>Ände&amp;rn...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Umbenennen...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>La&amp;den...</translation>
    </message>
    <message>
        <source>S&amp;ave...</source>
        <translation>S&amp;peichern...</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>CMlstyleNewDlg</name>
    <message>
        <source>Create New Multiline Style</source>
        <translation>Neuen Multilinienstil anlegen</translation>
    </message>
    <message>
        <source>New Style Name:</source>
        <translation>Neuer Name:</translation>
    </message>
    <message>
        <source>Start With:</source>
        <translation>Vorlage:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>CMlstyleNewModDlg</name>
    <message>
        <source>Modify Multiline Style::Standard</source>
        <translation>Multilinienstil ändern::Standard</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Caps</source>
        <translation>Abschlüsse</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Line at the start</source>
        <translation>Linie am Anfang</translation>
    </message>
    <message>
        <source>Line at the end</source>
        <translation>Linie am Ende</translation>
    </message>
    <message>
        <source>Outer arc</source>
        <translation>Außenbogen</translation>
    </message>
    <message>
        <source>Outer arc at the start</source>
        <translation>Außenbogen am Anfang</translation>
    </message>
    <message>
        <source>Outer arc at the end</source>
        <translation>Außenbogen am Ende</translation>
    </message>
    <message>
        <source>lnner</source>
        <translation>Innenbögen</translation>
    </message>
    <message>
        <source>Inner arcs at the start</source>
        <translation>Innenbögen am Anfang</translation>
    </message>
    <message>
        <source>Inner arcs at the end</source>
        <translation>Innenbögen am Ende</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Angle at the start</source>
        <translation>Winkel am Anfang</translation>
    </message>
    <message>
        <source>Angle at the end</source>
        <translation>Winkel am Ende</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Fill color:</source>
        <translation>Füllfarbe:</translation>
    </message>
    <message>
        <source>Fill color</source>
        <translation>Füllfarbe</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>Gehrungen</translation>
    </message>
    <message>
        <source>Display joints</source>
        <translation>Gehrungslinien anzeigen</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Versatz:</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Linetype:</source>
        <translation>Linientyp:</translation>
    </message>
    <message>
        <source>Linetype</source>
        <translation>Linientyp</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>CMlstyleRenameDlg</name>
    <message>
        <source>Rename Multiline Style</source>
        <translation>Multilinienstil umbenennen</translation>
    </message>
    <message>
        <source>Old Style Name:</source>
        <translation>Bisheriger Name:</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>New Style Name:</source>
        <translation>Neuer Name:</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>MleditDialog</name>
    <message>
        <source>Multilines Edit tools</source>
        <translation>Werkzeuge für Multilinien</translation>
    </message>
    <message>
        <source>To use a tool, click on the icon. Object selection must be performed after the tool
has been selected </source>
        <translation>Zum Verwenden eines Werkzeugs auf sein Bild klicken. Objekte werden erst gewählt,
wenn das Werkzeug gewählt ist </translation>
    </message>
    <message>
        <source>Multilines Edit Tools</source>
        <translation>Werkzeuge für Multilinien</translation>
    </message>
    <message>
        <source>Break the first multiline where it crosses the second</source>
        <translation>Die erste Multilinie unterbrechen, wo sie die zweite kreuzt</translation>
    </message>
    <message>
        <source>Closed Cross</source>
        <translation>Geschlossenes Kreuz</translation>
    </message>
    <message>
        <source>End the first multiline at the second, which stays whole</source>
        <translation>Die erste Multilinie an der zweiten enden lassen, die ganz bleibt</translation>
    </message>
    <message>
        <source>Closed Tee</source>
        <translation>Geschlossenes T</translation>
    </message>
    <message>
        <source>Trim or lengthen two multilines to a common corner</source>
        <translation>Zwei Multilinien zu einer gemeinsamen Ecke kürzen oder verlängern</translation>
    </message>
    <message>
        <source>Corner Joint</source>
        <translation>Eckverbindung</translation>
    </message>
    <message>
        <source>Cut one line of a multiline between two points</source>
        <translation>Eine Linie einer Multilinie zwischen zwei Punkten trennen</translation>
    </message>
    <message>
        <source>Cut Single</source>
        <translation>Eine Linie trennen</translation>
    </message>
    <message>
        <source>Break the first multiline, and the outer lines of the second</source>
        <translation>Die erste Multilinie und die Außenlinien der zweiten unterbrechen</translation>
    </message>
    <message>
        <source>Open Cross</source>
        <translation>Offenes Kreuz</translation>
    </message>
    <message>
        <source>End the first multiline at the second and open that</source>
        <translation>Die erste Multilinie an der zweiten enden lassen und diese öffnen</translation>
    </message>
    <message>
        <source>Open Tee</source>
        <translation>Offenes T</translation>
    </message>
    <message>
        <source>Put a vertex into a multiline</source>
        <translation>Einen Scheitelpunkt in eine Multilinie einfügen</translation>
    </message>
    <message>
        <source>Add Vertex</source>
        <translation>Scheitelpunkt einfügen</translation>
    </message>
    <message>
        <source>Cut all lines of a multiline between two points</source>
        <translation>Alle Linien einer Multilinie zwischen zwei Punkten trennen</translation>
    </message>
    <message>
        <source>Cut All</source>
        <translation>Alle Linien trennen</translation>
    </message>
    <message>
        <source>Break the outer lines of both multilines where they cross</source>
        <translation>Die Außenlinien beider Multilinien unterbrechen, wo sie sich kreuzen</translation>
    </message>
    <message>
        <source>Merged Cross</source>
        <translation>Verbundenes Kreuz</translation>
    </message>
    <message>
        <source>End the first multiline inside the second and join their lines</source>
        <translation>Die erste Multilinie in der zweiten enden lassen und ihre Linien verbinden</translation>
    </message>
    <message>
        <source>Merged Tee</source>
        <translation>Verbundenes T</translation>
    </message>
    <message>
        <source>Take a vertex out of a multiline</source>
        <translation>Einen Scheitelpunkt aus einer Multilinie entfernen</translation>
    </message>
    <message>
        <source>Delete Vertex</source>
        <translation>Scheitelpunkt löschen</translation>
    </message>
    <message>
        <source>Close the cuts of a multiline between two points</source>
        <translation>Die Lücken einer Multilinie zwischen zwei Punkten schließen</translation>
    </message>
    <message>
        <source>Weld All</source>
        <translation>Alle Linien verschweißen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
</TS>
