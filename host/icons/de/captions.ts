<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Canvas</name>
    <message>
        <source>%1 entities, shown by their boxes</source>
        <translation>%1 Objekte, als Rahmen gezeigt</translation>
    </message>
</context>
<context>
    <name>DrawBar</name>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Null</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Unnamed drawing</source>
        <translation>Unbenannte Zeichnung</translation>
    </message>
    <message>
        <source>Drawings (*.dxf *.DXF);;All files (*)</source>
        <translation>Zeichnungen (*.dxf *.DXF);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Opening %1 ...</source>
        <translation>%1 wird geöffnet ...</translation>
    </message>
    <message>
        <source>%1  (%2)</source>
        <translation>%1  (%2)</translation>
    </message>
    <message>
        <source>Multiline tools</source>
        <translation>Multilinienwerkzeuge</translation>
    </message>
    <message>
        <source>%1 (%2): %3</source>
        <translation>%1 (%2): %3</translation>
    </message>
</context>
<context>
    <name>hoverText</name>
    <message>
        <source>%1, layer %2, %3 wide, #%4</source>
        <translation>%1, Layer %2, %3 breit, #%4</translation>
    </message>
    <message>
        <source>Layer %1, #%2</source>
        <translation>Layer %1, #%2</translation>
    </message>
</context>
<context>
    <name>joinTexts</name>
    <message>
        <source>%1 cross</source>
        <translation>%1 Kreuz</translation>
    </message>
    <message>
        <source>%1 crosses</source>
        <translation>%1 Kreuze</translation>
    </message>
    <message>
        <source>%1 tee</source>
        <translation>%1 T-Stoß</translation>
    </message>
    <message>
        <source>%1 tees</source>
        <translation>%1 T-Stöße</translation>
    </message>
    <message>
        <source>%1 corner</source>
        <translation>%1 Ecke</translation>
    </message>
    <message>
        <source>%1 corners</source>
        <translation>%1 Ecken</translation>
    </message>
    <message>
        <source>%1 joint was made</source>
        <translation>%1 Verbindung hergestellt</translation>
    </message>
    <message>
        <source>%1 joints were made</source>
        <translation>%1 Verbindungen hergestellt</translation>
    </message>
    <message>
        <source>%1 joint to make</source>
        <translation>%1 Verbindung herzustellen</translation>
    </message>
    <message>
        <source>%1 joints to make</source>
        <translation>%1 Verbindungen herzustellen</translation>
    </message>
    <message>
        <source>%1 place is joined already</source>
        <translation>%1 Stelle ist schon verbunden</translation>
    </message>
    <message>
        <source>%1 places are joined already</source>
        <translation>%1 Stellen sind schon verbunden</translation>
    </message>
    <message>
        <source>%1 place isn&apos;t asked for</source>
        <translation>%1 Stelle ist nicht gefragt</translation>
    </message>
    <message>
        <source>%1 places aren&apos;t asked for</source>
        <translation>%1 Stellen sind nicht gefragt</translation>
    </message>
    <message>
        <source>%1 place is left as it is:</source>
        <translation>%1 Stelle bleibt, wie sie ist:</translation>
    </message>
    <message>
        <source>%1 places are left as they are:</source>
        <translation>%1 Stellen bleiben, wie sie sind:</translation>
    </message>
</context>
<context>
    <name>orvex</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Start an empty drawing</source>
        <translation>Eine leere Zeichnung beginnen</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Öffnen...</translation>
    </message>
    <message>
        <source>Open a drawing</source>
        <translation>Zeichnung öffnen</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Open a recent drawing</source>
        <translation>Eine zuletzt benutzte Zeichnung öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the drawing into its file</source>
        <translation>Die Zeichnung in ihre Datei speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save the drawing into another file</source>
        <translation>Die Zeichnung in eine andere Datei speichern</translation>
    </message>
    <message>
        <source>&amp;Export Picture...</source>
        <translation>&amp;Bild ausgeben...</translation>
    </message>
    <message>
        <source>Draw the drawing into an SVG, PNG or PDF file</source>
        <translation>Die Zeichnung als SVG-, PNG- oder PDF-Datei ausgeben</translation>
    </message>
    <message>
        <source>Play a Scri&amp;pt...</source>
        <translation>S&amp;kript ausführen...</translation>
    </message>
    <message>
        <source>Play the lines of a script, each command a step to undo</source>
        <translation>Die Zeilen eines Skripts ausführen, jeder Befehl ein Schritt zum Rückgängigmachen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>Leave the program</source>
        <translation>Das Programm verlassen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Take back the last point, cycle or command</source>
        <translation>Den letzten Punkt, Durchgang oder Befehl zurücknehmen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Bring back what was taken back last</source>
        <translation>Zurückholen, was zuletzt zurückgenommen wurde</translation>
    </message>
    <message>
        <source>Undo &amp;Memory...</source>
        <translation>S&amp;peicher für Rückgängig...</translation>
    </message>
    <message>
        <source>Choose how much memory the commands that can be taken back may hold</source>
        <translation>Wählen, wie viel Speicher die Befehle belegen dürfen, die zurückgenommen werden können</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Take what is selected out of the drawing</source>
        <translation>Gewähltes aus der Zeichnung entfernen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles wählen</translation>
    </message>
    <message>
        <source>Select all that is seen</source>
        <translation>Alles Sichtbare wählen</translation>
    </message>
    <message>
        <source>Select &amp;Previous</source>
        <translation>&amp;Vorige Auswahl</translation>
    </message>
    <message>
        <source>Select what the last command had selected</source>
        <translation>Wählen, was der letzte Befehl gewählt hatte</translation>
    </message>
    <message>
        <source>Select by &amp;Style</source>
        <translation>Nach &amp;Stil wählen</translation>
    </message>
    <message>
        <source>Select the multilines of a style</source>
        <translation>Die Multilinien eines Stils wählen</translation>
    </message>
    <message>
        <source>Select by &amp;Layer</source>
        <translation>Nach La&amp;yer wählen</translation>
    </message>
    <message>
        <source>Select what lies on a layer</source>
        <translation>Wählen, was auf einem Layer liegt</translation>
    </message>
    <message>
        <source>&amp;Deselect</source>
        <translation>Auswahl auf&amp;heben</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Nichts wählen</translation>
    </message>
    <message>
        <source>Zoom &amp;Extents</source>
        <translation>Zoom &amp;Grenzen</translation>
    </message>
    <message>
        <source>Show the whole drawing</source>
        <translation>Die ganze Zeichnung zeigen</translation>
    </message>
    <message>
        <source>Zoom &amp;Window</source>
        <translation>Zoom &amp;Fenster</translation>
    </message>
    <message>
        <source>Show what lies between two corners</source>
        <translation>Zeigen, was zwischen zwei Ecken liegt</translation>
    </message>
    <message>
        <source>Zoom &amp;Previous</source>
        <translation>Zoom &amp;Vorher</translation>
    </message>
    <message>
        <source>Show what was shown before</source>
        <translation>Zeigen, was vorher zu sehen war</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Show less, and larger</source>
        <translation>Weniger zeigen, und größer</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Show more, and smaller</source>
        <translation>Mehr zeigen, und kleiner</translation>
    </message>
    <message>
        <source>&amp;Multiline</source>
        <translation>&amp;Multilinie</translation>
    </message>
    <message>
        <source>Draw a multiline in the current style</source>
        <translation>Eine Multilinie im aktuellen Stil zeichnen</translation>
    </message>
    <message>
        <source>&amp;Edit Multilines...</source>
        <translation>Multilinien b&amp;earbeiten...</translation>
    </message>
    <message>
        <source>Choose one of the twelve multiline tools</source>
        <translation>Eines der zwölf Multilinienwerkzeuge wählen</translation>
    </message>
    <message>
        <source>Multiline &amp;Tools</source>
        <translation>Multilinien&amp;werkzeuge</translation>
    </message>
    <message>
        <source>The twelve multiline tools</source>
        <translation>Die zwölf Multilinienwerkzeuge</translation>
    </message>
    <message>
        <source>&amp;Join Plan...</source>
        <translation>&amp;Plan verbinden...</translation>
    </message>
    <message>
        <source>Join multilines wherever they cross or end at each other</source>
        <translation>Multilinien überall verbinden, wo sie sich kreuzen oder aneinander enden</translation>
    </message>
    <message>
        <source>Mo&amp;ve</source>
        <translation>&amp;Verschieben</translation>
    </message>
    <message>
        <source>Move multilines from a base point to another</source>
        <translation>Multilinien von einem Basispunkt zu einem anderen verschieben</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy multilines from a base point to others</source>
        <translation>Multilinien von einem Basispunkt zu anderen kopieren</translation>
    </message>
    <message>
        <source>&amp;Rotate</source>
        <translation>&amp;Drehen</translation>
    </message>
    <message>
        <source>Turn multilines about a base point</source>
        <translation>Multilinien um einen Basispunkt drehen</translation>
    </message>
    <message>
        <source>M&amp;irror</source>
        <translation>Sp&amp;iegeln</translation>
    </message>
    <message>
        <source>Replace multilines by their mirror images</source>
        <translation>Multilinien durch ihre Spiegelbilder ersetzen</translation>
    </message>
    <message>
        <source>Stretc&amp;h</source>
        <translation>St&amp;recken</translation>
    </message>
    <message>
        <source>Move the vertices within a window</source>
        <translation>Die Scheitelpunkte in einem Fenster verschieben</translation>
    </message>
    <message>
        <source>Re&amp;verse Direction</source>
        <translation>Richtung &amp;umkehren</translation>
    </message>
    <message>
        <source>Turn the direction of multilines; nothing looks different</source>
        <translation>Die Richtung von Multilinien umkehren; das Aussehen bleibt gleich</translation>
    </message>
    <message>
        <source>Ver&amp;tex</source>
        <translation>&amp;Scheitelpunkt</translation>
    </message>
    <message>
        <source>Move, add or remove a vertex of a multiline</source>
        <translation>Einen Scheitelpunkt einer Multilinie verschieben, einfügen oder entfernen</translation>
    </message>
    <message>
        <source>E&amp;xtend</source>
        <translation>De&amp;hnen</translation>
    </message>
    <message>
        <source>Bring ends forward to another multiline</source>
        <translation>Enden bis zu einer anderen Multilinie verlängern</translation>
    </message>
    <message>
        <source>&amp;Trim</source>
        <translation>S&amp;tutzen</translation>
    </message>
    <message>
        <source>Bring ends back to another multiline</source>
        <translation>Enden bis zu einer anderen Multilinie kürzen</translation>
    </message>
    <message>
        <source>&amp;Break</source>
        <translation>&amp;Brechen</translation>
    </message>
    <message>
        <source>Part a multiline at a gap, at a point or between two</source>
        <translation>Eine Multilinie an einer Lücke, einem Punkt oder zwischen zweien teilen</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>&amp;Zusammenfügen</translation>
    </message>
    <message>
        <source>Make one multiline of two whose ends meet</source>
        <translation>Aus zwei Multilinien, deren Enden sich treffen, eine machen</translation>
    </message>
    <message>
        <source>Ch&amp;ange</source>
        <translation>&amp;Ändern</translation>
    </message>
    <message>
        <source>Give multilines another style, scale, justification or layer</source>
        <translation>Multilinien einen anderen Stil, Maßstab, Layer oder eine andere Ausrichtung geben</translation>
    </message>
    <message>
        <source>Replace St&amp;yle</source>
        <translation>Stil erset&amp;zen</translation>
    </message>
    <message>
        <source>Give all multilines of a style another one</source>
        <translation>Allen Multilinien eines Stils einen anderen geben</translation>
    </message>
    <message>
        <source>Ex&amp;plode</source>
        <translation>Zer&amp;legen</translation>
    </message>
    <message>
        <source>Turn multilines into lines, arcs and filled areas</source>
        <translation>Multilinien in Linien, Bögen und gefüllte Flächen zerlegen</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Auflisten</translation>
    </message>
    <message>
        <source>Show what multilines are: style, scale, layer, length</source>
        <translation>Zeigen, was Multilinien sind: Stil, Maßstab, Layer, Länge</translation>
    </message>
    <message>
        <source>Multiline &amp;Styles...</source>
        <translation>&amp;Multilinienstile...</translation>
    </message>
    <message>
        <source>Manage the multiline styles of the drawing</source>
        <translation>Die Multilinienstile der Zeichnung verwalten</translation>
    </message>
    <message>
        <source>Change a Style in &amp;Use...</source>
        <translation>Verwendeten Stil ä&amp;ndern...</translation>
    </message>
    <message>
        <source>Change a copy of a style, and let all that use the style take it</source>
        <translation>Eine Kopie eines Stils ändern und allen geben, die den Stil verwenden</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tools, commands, keys, and known peculiarities</source>
        <translation>Werkzeuge, Befehle, Tasten und bekannte Eigenheiten</translation>
    </message>
    <message>
        <source>&amp;About Orvex</source>
        <translation>Ü&amp;ber Orvex</translation>
    </message>
    <message>
        <source>What this program is</source>
        <translation>Was dieses Programm ist</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Zeichnen</translation>
    </message>
    <message>
        <source>&amp;Modify</source>
        <translation>Ä&amp;ndern</translation>
    </message>
    <message>
        <source>&amp;Closed Cross</source>
        <translation>&amp;Geschlossenes Kreuz</translation>
    </message>
    <message>
        <source>Break the first multiline where it crosses the second</source>
        <translation>Die erste Multilinie unterbrechen, wo sie die zweite kreuzt</translation>
    </message>
    <message>
        <source>&amp;Open Cross</source>
        <translation>&amp;Offenes Kreuz</translation>
    </message>
    <message>
        <source>Break the first multiline, and the outer lines of the second</source>
        <translation>Die erste Multilinie und die Außenlinien der zweiten unterbrechen</translation>
    </message>
    <message>
        <source>&amp;Merged Cross</source>
        <translation>&amp;Verbundenes Kreuz</translation>
    </message>
    <message>
        <source>Break the outer lines of both multilines where they cross</source>
        <translation>Die Außenlinien beider Multilinien unterbrechen, wo sie sich kreuzen</translation>
    </message>
    <message>
        <source>Closed &amp;Tee</source>
        <translation>Geschlossenes &amp;T</translation>
    </message>
    <message>
        <source>End the first multiline at the second, which stays whole</source>
        <translation>Die erste Multilinie an der zweiten enden lassen, die ganz bleibt</translation>
    </message>
    <message>
        <source>Open T&amp;ee</source>
        <translation>O&amp;ffenes T</translation>
    </message>
    <message>
        <source>End the first multiline at the second and open that</source>
        <translation>Die erste Multilinie an der zweiten enden lassen und diese öffnen</translation>
    </message>
    <message>
        <source>Merged Tee</source>
        <translation>Verbundenes T</translation>
    </message>
    <message>
        <source>End the first multiline inside the second and join their lines</source>
        <translation>Die erste Multilinie in der zweiten enden lassen und ihre Linien verbinden</translation>
    </message>
    <message>
        <source>Corner &amp;Joint</source>
        <translation>&amp;Eckverbindung</translation>
    </message>
    <message>
        <source>Trim or lengthen two multilines to a common corner</source>
        <translation>Zwei Multilinien zu einer gemeinsamen Ecke kürzen oder verlängern</translation>
    </message>
    <message>
        <source>&amp;Add Vertex</source>
        <translation>Scheitelpunkt e&amp;infügen</translation>
    </message>
    <message>
        <source>Put a vertex into a multiline</source>
        <translation>Einen Scheitelpunkt in eine Multilinie einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete Vertex</source>
        <translation>Scheitelpunkt lö&amp;schen</translation>
    </message>
    <message>
        <source>Take a vertex out of a multiline</source>
        <translation>Einen Scheitelpunkt aus einer Multilinie entfernen</translation>
    </message>
    <message>
        <source>Cut &amp;Single</source>
        <translation>Eine &amp;Linie trennen</translation>
    </message>
    <message>
        <source>Cut one line of a multiline between two points</source>
        <translation>Eine Linie einer Multilinie zwischen zwei Punkten trennen</translation>
    </message>
    <message>
        <source>Cut A&amp;ll</source>
        <translation>&amp;Alle Linien trennen</translation>
    </message>
    <message>
        <source>Cut all lines of a multiline between two points</source>
        <translation>Alle Linien einer Multilinie zwischen zwei Punkten trennen</translation>
    </message>
    <message>
        <source>&amp;Weld All</source>
        <translation>Alle Linien versch&amp;weißen</translation>
    </message>
    <message>
        <source>Close the cuts of a multiline between two points</source>
        <translation>Die Lücken einer Multilinie zwischen zwei Punkten schließen</translation>
    </message>
    <message>
        <source>Save &amp;History as Script...</source>
        <translation>&amp;Verlauf als Skript speichern...</translation>
    </message>
    <message>
        <source>Write what was done in this drawing as a script that does it again</source>
        <translation>Schreibt, was in dieser Zeichnung getan wurde, als Skript, das es noch einmal tut</translation>
    </message>
</context>
<context>
    <name>orvex::Canvas</name>
    <message>
        <source>%1 touched</source>
        <translation>%1 berührt</translation>
    </message>
    <message>
        <source>%1 within</source>
        <translation>%1 darin</translation>
    </message>
</context>
<context>
    <name>orvex::CommandDock</name>
    <message>
        <source>Command line</source>
        <translation>Befehlszeile</translation>
    </message>
</context>
<context>
    <name>orvex::CommandLine</name>
    <message>
        <source>%1 lines, Enter plays them</source>
        <translation>%1 Zeilen, Eingabetaste führt sie aus</translation>
    </message>
</context>
<context>
    <name>orvex::DeskFiles</name>
    <message>
        <source>Open a drawing</source>
        <translation>Zeichnung öffnen</translation>
    </message>
    <message>
        <source>The opening of %1 was cancelled.</source>
        <translation>Das Öffnen von %1 wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The drawing can&apos;t be opened.</source>
        <translation>Die Zeichnung kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>%1 ist geöffnet</translation>
    </message>
    <message>
        <source>drawing.dxf</source>
        <translation>zeichnung.dxf</translation>
    </message>
    <message>
        <source>Save the drawing as</source>
        <translation>Zeichnung speichern unter</translation>
    </message>
    <message>
        <source>Orvex</source>
        <translation>Orvex</translation>
    </message>
    <message>
        <source>%1 exists already.</source>
        <translation>%1 gibt es schon.</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile.</source>
        <translation>%1 wurde inzwischen von einem anderen Programm geschrieben.</translation>
    </message>
    <message>
        <source>Saving here loses what is in it now. Save all the same?</source>
        <translation>Beim Speichern geht verloren, was jetzt darin steht. Trotzdem speichern?</translation>
    </message>
    <message>
        <source>The drawing can&apos;t be saved. What was in the file before is still there.</source>
        <translation>Die Zeichnung kann nicht gespeichert werden. Der bisherige Inhalt der Datei ist noch da.</translation>
    </message>
    <message>
        <source>Saved into %1</source>
        <translation>In %1 gespeichert</translation>
    </message>
    <message>
        <source>Export a picture</source>
        <translation>Bild ausgeben</translation>
    </message>
    <message>
        <source>SVG (*.svg);;PNG (*.png);;PDF (*.pdf)</source>
        <translation>SVG (*.svg);;PNG (*.png);;PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The picture can&apos;t be written.</source>
        <translation>Das Bild kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Drawn into %1</source>
        <translation>In %1 gezeichnet</translation>
    </message>
    <message>
        <source>%1 has changes that aren&apos;t saved.</source>
        <translation>%1 hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>Do you want to save them?</source>
        <translation>Sollen sie gespeichert werden?</translation>
    </message>
</context>
<context>
    <name>orvex::DrawBar</name>
    <message>
        <source>Off or frozen: nothing can be drawn on it</source>
        <translation>Aus oder gefroren: darauf kann nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>Locked: what is drawn on it can&apos;t be edited</source>
        <translation>Gesperrt: was darauf gezeichnet wird, kann nicht bearbeitet werden</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>The style of what is drawn next</source>
        <translation>Der Stil dessen, was als Nächstes gezeichnet wird</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>The layer of what is drawn next</source>
        <translation>Der Layer dessen, was als Nächstes gezeichnet wird</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>The scale of what is drawn next: offsets of the style times this</source>
        <translation>Der Maßstab dessen, was als Nächstes gezeichnet wird: Abstände des Stils mal diese Zahl</translation>
    </message>
    <message>
        <source>Justification</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Which line of what is drawn next goes through the points</source>
        <translation>Welche Linie dessen, was als Nächstes gezeichnet wird, durch die Punkte geht</translation>
    </message>
    <message>
        <source> Scale </source>
        <translation> Maßstab </translation>
    </message>
    <message>
        <source>A scale of 0 would put all lines in one place.</source>
        <translation>Beim Maßstab 0 lägen alle Linien an einer Stelle.</translation>
    </message>
</context>
<context>
    <name>orvex::GripDesk</name>
    <message>
        <source>Move &amp;Common Vertices Together</source>
        <translation>&amp;Gemeinsame Scheitelpunkte zusammen verschieben</translation>
    </message>
    <message>
        <source>Vertices of selected multilines in the same place move as one</source>
        <translation>Scheitelpunkte gewählter Multilinien an derselben Stelle bewegen sich gemeinsam</translation>
    </message>
    <message>
        <source>&amp;Move Vertex</source>
        <translation>Scheitelpunkt &amp;verschieben</translation>
    </message>
    <message>
        <source>&amp;Add Vertex</source>
        <translation>Scheitelpunkt &amp;einfügen</translation>
    </message>
    <message>
        <source>&amp;Remove Vertex</source>
        <translation>Scheitelpunkt ent&amp;fernen</translation>
    </message>
</context>
<context>
    <name>orvex::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Search all pages</source>
        <translation>Alle Seiten durchsuchen</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Voriges</translation>
    </message>
    <message>
        <source>The pages of the help can&apos;t be found.</source>
        <translation>Die Seiten der Hilfe sind nicht zu finden.</translation>
    </message>
</context>
<context>
    <name>orvex::JoinDesk</name>
    <message>
        <source>Join plan</source>
        <translation>Plan verbinden</translation>
    </message>
</context>
<context>
    <name>orvex::JoinPanel</name>
    <message>
        <source>closed</source>
        <translation>geschlossen</translation>
    </message>
    <message>
        <source>open</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>merged</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>leave apart</source>
        <translation>getrennt</translation>
    </message>
    <message>
        <source>Crosses</source>
        <translation>Kreuze</translation>
    </message>
    <message>
        <source>Tees</source>
        <translation>T-Stöße</translation>
    </message>
    <message>
        <source>Join corners</source>
        <translation>Ecken verbinden</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>automatic: half the narrower wall</source>
        <translation>automatisch: halbe schmalere Wand</translation>
    </message>
    <message>
        <source>How far an end may lie short of a wall or over it, drawing units</source>
        <translation>Wie weit ein Ende vor einer Wand oder hinter ihr liegen darf, in Zeichnungseinheiten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Join a plan</source>
        <translation>Einen Plan verbinden</translation>
    </message>
    <message>
        <source>Select the multilines to join, or take all.</source>
        <translation>Zu verbindende Multilinien wählen oder alle nehmen.</translation>
    </message>
    <message>
        <source>Take the %1 selected</source>
        <translation>Die %1 gewählten nehmen</translation>
    </message>
    <message>
        <source>Take all multilines</source>
        <translation>Alle Multilinien nehmen</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>A tolerance is 0 or more.</source>
        <translation>Eine Toleranz ist 0 oder größer.</translation>
    </message>
</context>
<context>
    <name>orvex::KeypadPoint</name>
    <message>
        <source>&apos;%1&apos; is no number: decimals follow a point, %2.</source>
        <translation>„%1“ ist keine Zahl: Dezimalstellen stehen nach einem Punkt, %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
</context>
<context>
    <name>orvex::KeywordBar</name>
    <message>
        <source>Answers %1; typed, %2 will do</source>
        <translation>Antwortet %1; getippt genügt %2</translation>
    </message>
</context>
<context>
    <name>orvex::LanguageDesk</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>Wie das &amp;System</translation>
    </message>
    <message>
        <source>The language changes when the program is started again.</source>
        <translation>Die Sprache wechselt beim nächsten Start des Programms.</translation>
    </message>
</context>
<context>
    <name>orvex::LookDesk</name>
    <message>
        <source>&amp;Light Canvas</source>
        <translation>&amp;Helle Zeichenfläche</translation>
    </message>
    <message>
        <source>Show the drawing on a light ground</source>
        <translation>Die Zeichnung auf hellem Grund zeigen</translation>
    </message>
</context>
<context>
    <name>orvex::MainWindow</name>
    <message>
        <source>Command: %1</source>
        <translation>Befehl: %1</translation>
    </message>
    <message>
        <source>(first corner of the zoom window)</source>
        <translation>(erste Ecke des Zoomfensters)</translation>
    </message>
    <message>
        <source>(opposite corner of the zoom window)</source>
        <translation>(gegenüberliegende Ecke des Zoomfensters)</translation>
    </message>
    <message>
        <source>The module of the multiline commands can&apos;t be found.</source>
        <translation>Das Modul der Multilinienbefehle ist nicht zu finden.</translation>
    </message>
    <message>
        <source>Command:</source>
        <translation>Befehl:</translation>
    </message>
    <message>
        <source>[*] — Orvex</source>
        <translation>[*] — Orvex</translation>
    </message>
    <message>
        <source>About Orvex</source>
        <translation>Über Orvex</translation>
    </message>
    <message>
        <source>Orvex %1</source>
        <translation>Orvex %1</translation>
    </message>
    <message>
        <source>Opens real drawings and edits their multilines: walls, roads, pipes.
What isn&apos;t edited is saved byte for byte.</source>
        <translation>Öffnet echte Zeichnungen und bearbeitet ihre Multilinien: Wände, Straßen, Rohre.
Was nicht bearbeitet wird, wird Byte für Byte gespeichert.</translation>
    </message>
</context>
<context>
    <name>orvex::PastedLines</name>
    <message>
        <source>The pasted lines that follow are left out: %1.</source>
        <translation>Die weiteren eingefügten Zeilen werden ausgelassen: %1.</translation>
    </message>
</context>
<context>
    <name>orvex::PlayScript</name>
    <message>
        <source>A script can be played at the command prompt only.</source>
        <translation>Ein Skript kann nur bei der Befehlsabfrage ausgeführt werden.</translation>
    </message>
    <message>
        <source>Play a script</source>
        <translation>Skript ausführen</translation>
    </message>
    <message>
        <source>Scripts (*.scr *.SCR);;All files (*)</source>
        <translation>Skripte (*.scr *.SCR);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Playing %1</source>
        <translation>%1 wird ausgeführt</translation>
    </message>
    <message>
        <source>The script was stopped after line %1.</source>
        <translation>Das Skript wurde nach Zeile %1 angehalten.</translation>
    </message>
    <message>
        <source>Save the history as a script</source>
        <translation>Verlauf als Skript speichern</translation>
    </message>
    <message>
        <source>Written into %1</source>
        <translation>In %1 geschrieben</translation>
    </message>
    <message>
        <source>What was changed in dialogs of styles is in no script: played, it won&apos;t give the same drawing.</source>
        <translation>Was in den Dialogen der Stile geändert wurde, steht in keinem Skript: Abgespielt ergibt es nicht dieselbe Zeichnung.</translation>
    </message>
</context>
<context>
    <name>orvex::PropertyDesk</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
</context>
<context>
    <name>orvex::PropertyPanel</name>
    <message>
        <source>&amp;Style</source>
        <translation>&amp;Stil</translation>
    </message>
    <message>
        <source>S&amp;cale</source>
        <translation>&amp;Maßstab</translation>
    </message>
    <message>
        <source>&amp;Justification</source>
        <translation>&amp;Ausrichtung</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Null</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;Layer</translation>
    </message>
    <message>
        <source>C&amp;aps</source>
        <translation>A&amp;bschlüsse</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Am Anfang</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>Am Ende</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
    <message>
        <source>C&amp;hain</source>
        <translation>&amp;Kette</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Geschlossen</translation>
    </message>
    <message>
        <source>(differ)</source>
        <translation>(verschieden)</translation>
    </message>
    <message>
        <source>No multiline is selected.</source>
        <translation>Keine Multilinie ist gewählt.</translation>
    </message>
    <message>
        <source>%1 of %2 are locked.</source>
        <translation>%1 von %2 sind gesperrt.</translation>
    </message>
    <message>
        <source>1 multiline</source>
        <translation>1 Multilinie</translation>
    </message>
    <message>
        <source>%1 multilines</source>
        <translation>%1 Multilinien</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no scale.</source>
        <translation>„%1“ ist kein Maßstab.</translation>
    </message>
</context>
<context>
    <name>orvex::SelectDesk</name>
    <message>
        <source>%1 selected</source>
        <translation>%1 gewählt</translation>
    </message>
</context>
<context>
    <name>orvex::SnapDesk</name>
    <message>
        <source>&amp;Cross by Keys</source>
        <translation>Kreuz mit &amp;Tasten</translation>
    </message>
    <message>
        <source>Arrows move the cross, with Shift by 10, with Ctrl to the next target; Enter clicks</source>
        <translation>Pfeiltasten bewegen das Kreuz, mit Umschalt um 10, mit Strg zum nächsten Ziel; die Eingabetaste klickt</translation>
    </message>
    <message>
        <source>No snap</source>
        <translation>Kein Fang</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>A&amp;perture...</source>
        <translation>&amp;Fangweite...</translation>
    </message>
    <message>
        <source>&amp;Snap</source>
        <translation>&amp;Fang</translation>
    </message>
    <message>
        <source>Draw points to targets near the cursor</source>
        <translation>Punkte auf Ziele nahe dem Cursor ziehen</translation>
    </message>
    <message>
        <source>SNAP</source>
        <translation>FANG</translation>
    </message>
    <message>
        <source>&amp;Ortho</source>
        <translation>&amp;Ortho</translation>
    </message>
    <message>
        <source>Keep lines horizontal or vertical from their base</source>
        <translation>Linien von ihrem Basispunkt waagerecht oder senkrecht halten</translation>
    </message>
    <message>
        <source>ORTHO</source>
        <translation>ORTHO</translation>
    </message>
    <message>
        <source>Angle Ste&amp;ps</source>
        <translation>&amp;Winkelschritte</translation>
    </message>
    <message>
        <source>Draw lines to angles in steps as they come near</source>
        <translation>Linien auf Winkel in Schritten ziehen, wenn sie nahe kommen</translation>
    </message>
    <message>
        <source>POLAR</source>
        <translation>POLAR</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Fangweite</translation>
    </message>
    <message>
        <source>Pixels from the cursor to a target, at most:</source>
        <translation>Pixel vom Cursor bis zu einem Ziel, höchstens:</translation>
    </message>
</context>
<context>
    <name>orvex::StatusLine</name>
    <message>
        <source>Style: %1</source>
        <translation>Stil: %1</translation>
    </message>
</context>
<context>
    <name>orvex::StyleButton</name>
    <message>
        <source>The current multiline style; a click manages the styles of the drawing</source>
        <translation>Der aktuelle Multilinienstil; ein Klick verwaltet die Stile der Zeichnung</translation>
    </message>
    <message>
        <source>No style</source>
        <translation>Kein Stil</translation>
    </message>
    <message>
        <source>Current style: %1; a click manages the styles</source>
        <translation>Aktueller Stil: %1; ein Klick verwaltet die Stile</translation>
    </message>
</context>
<context>
    <name>orvex::ToolDesk</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>Befehl: %1</translation>
    </message>
    <message>
        <source>Editing tool: %1</source>
        <translation>Werkzeug: %1</translation>
    </message>
    <message>
        <source>No editing tool was chosen.</source>
        <translation>Kein Werkzeug wurde gewählt.</translation>
    </message>
</context>
<context>
    <name>orvex::UndoDesk</name>
    <message>
        <source>1 multiline</source>
        <translation>1 Multilinie</translation>
    </message>
    <message>
        <source>%1 multilines</source>
        <translation>%1 Multilinien</translation>
    </message>
    <message>
        <source>1 entity</source>
        <translation>1 Objekt</translation>
    </message>
    <message>
        <source>%1 entities</source>
        <translation>%1 Objekte</translation>
    </message>
    <message>
        <source>The memory for undo is used up; the oldest steps can&apos;t be taken back any more (Edit, Undo Memory).</source>
        <translation>Der Speicher für Rückgängig ist voll; die ältesten Schritte können nicht mehr zurückgenommen werden (Bearbeiten, Speicher für Rückgängig).</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Undo memory</source>
        <translation>Speicher für Rückgängig</translation>
    </message>
    <message>
        <source>Memory that steps may hold until the oldest go, in MiB:</source>
        <translation>Speicher, den Schritte belegen dürfen, bis die ältesten verfallen, in MiB:</translation>
    </message>
</context>
</TS>
