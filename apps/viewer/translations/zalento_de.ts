<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_GB">
<context>
    <name>AlignPanel</name>
    <message>
        <source>Pipe</source>
        <translation>Rohr</translation>
    </message>
    <message>
        <source>A drag moves the pipe</source>
        <translation>Ziehen verschiebt das Rohr</translation>
    </message>
    <message>
        <source>Far end</source>
        <translation>Fernes Ende</translation>
    </message>
    <message>
        <source>A drag moves the pipe&apos;s far end</source>
        <translation>Ziehen verschiebt das ferne Ende des Rohres</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücks.</translation>
    </message>
    <message>
        <source>Reset the alignment</source>
        <translation>Ausrichtung zurücksetzen</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Klick</translation>
    </message>
    <message>
        <source>points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>joint</source>
        <translation>Fuge</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>New joint</source>
        <translation>Neue Fuge</translation>
    </message>
    <message>
        <source>New line</source>
        <translation>Neue Linie</translation>
    </message>
    <message>
        <source>The next click begins another one</source>
        <translation>Der nächste Klick beginnt eine weitere</translation>
    </message>
    <message>
        <source>Fit view</source>
        <translation>Bildwinkel</translation>
    </message>
    <message>
        <source>Fit the field of view, too: two joints with a known distance give it</source>
        <translation>Auch den Bildwinkel anpassen: zwei Fugen mit bekanntem Abstand ergeben ihn</translation>
    </message>
    <message>
        <source>As before</source>
        <translation>Wie zuvor</translation>
    </message>
    <message>
        <source>Take the alignment of the picture before this one</source>
        <translation>Die Ausrichtung des vorigen Bildes übernehmen</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>The model stays where it is: a drag pans</source>
        <translation>Das Modell bleibt, wo es ist: Ziehen verschiebt das Bild</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>Ringe</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>ends</source>
        <translation>Enden</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Lens and field of view: load, keep under a name, or take one that was kept</source>
        <translation>Objektiv und Sichtfeld: laden, unter einem Namen behalten oder ein behaltenes nehmen</translation>
    </message>
</context>
<context>
    <name>AssessmentPanel</name>
    <message>
        <source>Limit</source>
        <translation>Grenze</translation>
    </message>
    <message>
        <source>Limit: %1</source>
        <translation>Grenze: %1</translation>
    </message>
</context>
<context>
    <name>CameraDialog</name>
    <message>
        <source>Take the field of view of %1</source>
        <translation>Den Bildwinkel von %1 nehmen</translation>
    </message>
    <message>
        <source>Forget %1</source>
        <translation>%1 vergessen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the camera</source>
        <translation>Name der Kamera</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Merken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Camera and lens</source>
        <translation>Kamera und Objektiv</translation>
    </message>
    <message>
        <source>Lens: %1. The picture is shown without its distortion.</source>
        <translation>Objektiv: %1. Das Bild wird ohne seine Verzeichnung gezeigt.</translation>
    </message>
    <message>
        <source>No lens: the picture is shown as it was taken.</source>
        <translation>Kein Objektiv: Das Bild wird so gezeigt, wie es aufgenommen wurde.</translation>
    </message>
    <message>
        <source>Load lens…</source>
        <translation>Objektiv laden…</translation>
    </message>
    <message>
        <source>Load a file of OpenCV&apos;s form, as calibration programs write it</source>
        <translation>Eine Datei in der Form von OpenCV laden, wie Kalibrierprogramme sie schreiben</translation>
    </message>
    <message>
        <source>From joints</source>
        <translation>Aus Fugen</translation>
    </message>
    <message>
        <source>Estimate the lens from three clicked joints</source>
        <translation>Das Objektiv aus drei angeklickten Fugen schätzen</translation>
    </message>
    <message>
        <source>Remove lens</source>
        <translation>Ohne Objektiv</translation>
    </message>
    <message>
        <source>Show the picture as it was taken</source>
        <translation>Das Bild so zeigen, wie es aufgenommen wurde</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Gezeigt</translation>
    </message>
    <message>
        <source>full square</source>
        <translation>volles Quadrat</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alles</translation>
    </message>
    <message>
        <source>Kept for pictures of this size</source>
        <translation>Behalten für Bilder dieser Größe</translation>
    </message>
    <message>
        <source>Take the lens of %1</source>
        <translation>Das Objektiv von %1 nehmen</translation>
    </message>
    <message>
        <source>Keep lens or field of view under this name</source>
        <translation>Objektiv oder Sichtfeld unter diesem Namen behalten</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open pictures</source>
        <translation>Bilder öffnen</translation>
    </message>
    <message>
        <source>Save •</source>
        <translation>Sichern •</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Save the session beside the picture</source>
        <translation>Die Sitzung neben dem Bild sichern</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the value</source>
        <translation>Den Wert kopieren</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Voriges Bild</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message>
        <source>↶ Undo</source>
        <translation>↶ Zurück</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>↷ Redo</source>
        <translation>↷ Wieder</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Give up what is under way</source>
        <translation>Abbrechen, was im Gange ist</translation>
    </message>
    <message>
        <source>✕ Points</source>
        <translation>✕ Punkte</translation>
    </message>
    <message>
        <source>Clear all points</source>
        <translation>Alle Punkte löschen</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>Confirm the value as it is shown</source>
        <translation>Den Wert bestätigen, wie er angezeigt wird</translation>
    </message>
    <message>
        <source>Measure again</source>
        <translation>Nochmals messen</translation>
    </message>
    <message>
        <source>Keep the value, and measure once more</source>
        <translation>Den Wert behalten und noch einmal messen</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Map of what a pixel is worth; again: of the uncertainty</source>
        <translation>Karte, was ein Pixel wert ist; noch einmal: der Unsicherheit</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>Wand</translation>
    </message>
    <message>
        <source>The wall as a flat picture beside this one</source>
        <translation>Die Wand als ebenes Bild neben diesem</translation>
    </message>
    <message>
        <source>in</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Imperial units; switch to metric</source>
        <translation>Zoll und Fuß; zu metrisch wechseln</translation>
    </message>
    <message>
        <source>Metric units; switch to imperial</source>
        <translation>Metrisch; zu Zoll und Fuß wechseln</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ganz</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Ganzes Bild</translation>
    </message>
    <message>
        <source>Picture pixels</source>
        <translation>Bildpixel</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Lead the keys to the value</source>
        <translation>Die Tasten zum Wert führen</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>Lead the keys to the fields</source>
        <translation>Die Tasten zu den Feldern führen</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Lead the keys to the picture</source>
        <translation>Die Tasten zum Bild führen</translation>
    </message>
    <message>
        <source>List of keys</source>
        <translation>Liste der Tasten</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hide the overlay while held</source>
        <translation>Das Modell ausblenden, solange sie gedrückt ist</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Show a cursor; again: click with it</source>
        <translation>Einen Zeiger zeigen; noch einmal: damit klicken</translation>
    </message>
    <message>
        <source>Shift+Click</source>
        <translation>Umschalt+Klick</translation>
    </message>
    <message>
        <source>Set a point where a click would close the outline; Shift+Enter with the cursor</source>
        <translation>Einen Punkt setzen, wo ein Klick den Umriss schlösse; mit dem Zeiger Umschalt+Eingabe</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Pfeile</translation>
    </message>
    <message>
        <source>Move the cursor or the selected point by a pixel, or pan</source>
        <translation>Den Zeiger oder den gewählten Punkt um ein Pixel bewegen, oder das Bild verschieben</translation>
    </message>
    <message>
        <source>Shift+Arrows</source>
        <translation>Umschalt+Pfeile</translation>
    </message>
    <message>
        <source>The same by ten</source>
        <translation>Dasselbe um zehn</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Fangen</translation>
    </message>
    <message>
        <source>Find the joint&apos;s edge near the green ring</source>
        <translation>Den Rand der Fuge nahe dem grünen Ring finden</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Click points of the measurement</source>
        <translation>Punkte der Messung anklicken</translation>
    </message>
    <message>
        <source>Joint</source>
        <translation>Fuge</translation>
    </message>
    <message>
        <source>Click a joint; again: the next joint</source>
        <translation>Eine Fuge anklicken; noch einmal: die nächste Fuge</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Click a line along the pipe; again: the next line</source>
        <translation>Eine Linie entlang des Rohres anklicken; noch einmal: die nächste</translation>
    </message>
    <message>
        <source>Drop the last point, or the click that was taken</source>
        <translation>Den letzten Punkt entfernen, oder den gewählten Klick</translation>
    </message>
    <message>
        <source>Another</source>
        <translation>Weitere</translation>
    </message>
    <message>
        <source>Another measurement on this picture</source>
        <translation>Eine weitere Messung auf diesem Bild</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächste</translation>
    </message>
    <message>
        <source>Next measurement of this picture</source>
        <translation>Nächste Messung dieses Bildes</translation>
    </message>
    <message>
        <source>Name…</source>
        <translation>Name…</translation>
    </message>
    <message>
        <source>Name the measurement</source>
        <translation>Die Messung benennen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the measurement</source>
        <translation>Die Messung entfernen</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>Show all measurements with their names, in exports, too</source>
        <translation>Alle Messungen mit ihren Namen zeigen, auch in Exporten</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>The film, to measure another of its frames</source>
        <translation>Der Film, um ein weiteres seiner Bilder zu messen</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Strip of all pictures</source>
        <translation>Streifen mit allen Bildern</translation>
    </message>
    <message>
        <source>Go to…</source>
        <translation>Gehe zu …</translation>
    </message>
    <message>
        <source>Go to a picture: its number, or a part of its name</source>
        <translation>Zu einem Bild: seine Nummer oder ein Teil des Namens</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DisplayDialog</name>
    <message>
        <source>cyan</source>
        <translation>Türkis</translation>
    </message>
    <message>
        <source>green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>white</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Colours and units</source>
        <translation>Farben und Einheiten</translation>
    </message>
    <message>
        <source>Points, lines and water</source>
        <translation>Punkte, Linien und Wasser</translation>
    </message>
    <message>
        <source>Pipe</source>
        <translation>Rohr</translation>
    </message>
    <message>
        <source>Branch and bend</source>
        <translation>Abzweig und Bogen</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>metric</source>
        <translation>metrisch</translation>
    </message>
    <message>
        <source>imperial</source>
        <translation>imperial</translation>
    </message>
    <message>
        <source>Usual colours</source>
        <translation>Übliche Farben</translation>
    </message>
    <message>
        <source>The colours that the viewer comes with</source>
        <translation>Farben wie bei der Auslieferung</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::Assessment</name>
    <message>
        <source>clicks</source>
        <translation>Klicks</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>alignment</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>field of view</source>
        <translation>Bildwinkel</translation>
    </message>
    <message>
        <source>laser</source>
        <translation>Laser</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>set by eye</source>
        <translation>nach Auge gesetzt</translation>
    </message>
    <message>
        <source>Most comes from the clicks: zoom in, or measure nearer.</source>
        <translation>Das meiste kommt von den Klicks: vergrößern oder näher messen.</translation>
    </message>
    <message>
        <source>Most comes from the picture&apos;s pixels: measure nearer.</source>
        <translation>Das meiste kommt von den Pixeln des Bildes: näher messen.</translation>
    </message>
    <message>
        <source>Most comes from the fit: click more of the joints.</source>
        <translation>Das meiste kommt von der Anpassung: mehr von den Fugen anklicken.</translation>
    </message>
    <message>
        <source>Most comes from the alignment: click the joints.</source>
        <translation>Das meiste kommt von der Ausrichtung: die Fugen anklicken.</translation>
    </message>
    <message>
        <source>Most comes from the diameter: measure it.</source>
        <translation>Das meiste kommt vom Durchmesser: ihn messen.</translation>
    </message>
    <message>
        <source>Most comes from the field of view: fit it to two joints.</source>
        <translation>Das meiste kommt vom Bildwinkel: ihn an zwei Fugen anpassen.</translation>
    </message>
    <message>
        <source>Most comes from the laser spots: zoom in and click them anew.</source>
        <translation>Das meiste kommt von den Laserpunkten: vergrößern und sie neu anklicken.</translation>
    </message>
    <message>
        <source>Most comes from the scale that was typed: use laser spots.</source>
        <translation>Das meiste kommt vom eingetippten Maßstab: Laserpunkte verwenden.</translation>
    </message>
    <message>
        <source>Most comes from what was set by eye.</source>
        <translation>Das meiste kommt von dem, was nach Auge gesetzt wurde.</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2 %</translation>
    </message>
    <message>
        <source>below the limit</source>
        <translation>unter der Grenze</translation>
    </message>
    <message>
        <source>above the limit</source>
        <translation>über der Grenze</translation>
    </message>
    <message>
        <source>cannot be decided at 95 %</source>
        <translation>zu 95 % nicht zu entscheiden</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Grenze</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) kept</source>
        <translation>
            <numerusform>%n Ergebnis behalten</numerusform>
            <numerusform>%n Ergebnisse behalten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n results: mean %1, spread %2, of the mean %3</source>
        <translation>
            <numerusform>%n Ergebnis: Mittel %1, Streuung %2, des Mittels %3</numerusform>
            <numerusform>%n Ergebnisse: Mittel %1, Streuung %2, des Mittels %3</numerusform>
        </translation>
    </message>
    <message>
        <source>Point %1: %2 around, %3 along the pipe</source>
        <translation>Punkt %1: %2 im Umfang, %3 entlang des Rohres</translation>
    </message>
    <message>
        <source>Millimetres a pixel</source>
        <translation>Millimeter je Pixel</translation>
    </message>
    <message>
        <source>Uncertainty of a point, mm</source>
        <translation>Unsicherheit eines Punktes, mm</translation>
    </message>
    <message>
        <source>&gt; %1</source>
        <translation>&gt; %1</translation>
    </message>
    <message>
        <source>≤ %1</source>
        <translation>≤ %1</translation>
    </message>
    <message>
        <source>The limit is of another unit.</source>
        <translation>Die Grenze hat eine andere Einheit.</translation>
    </message>
    <message>
        <source>Point %1: %2 across, %3 up</source>
        <translation>Punkt %1: %2 quer, %3 hoch</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::CameraProfiles</name>
    <message>
        <source>A camera needs a name to be kept under.</source>
        <translation>Eine Kamera braucht einen Namen, unter dem sie gemerkt wird.</translation>
    </message>
    <message>
        <source>Kept: %1, field of view %2°.</source>
        <translation>Gemerkt: %1, Bildwinkel %2°.</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Kamera %1</translation>
    </message>
    <message>
        <source>Kept: %1, with its lens.</source>
        <translation>Behalten: %1, mit Objektiv.</translation>
    </message>
    <message>
        <source>without a name</source>
        <translation>ohne Namen</translation>
    </message>
    <message>
        <source>View of the lens</source>
        <translation>Ausschnitt des Objektivs</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>The picture is shown without the distortion of %1.</source>
        <translation>Das Bild wird ohne die Verzeichnung von %1 gezeigt.</translation>
    </message>
    <message>
        <source>Lens from joints</source>
        <translation>Objektiv aus Fugen</translation>
    </message>
    <message>
        <source>The lens was estimated from the joints: k1 is %1, with a standard uncertainty of %2.</source>
        <translation>Das Objektiv wurde aus den Fugen geschätzt: k1 ist %1, mit einer Standardunsicherheit von %2.</translation>
    </message>
    <message>
        <source>Without a lens</source>
        <translation>Ohne Objektiv</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::DocumentList</name>
    <message>
        <source>There are no pictures in %1.</source>
        <translation>In %1 sind keine Bilder.</translation>
    </message>
    <message>
        <source>%1 names no picture.</source>
        <translation>%1 nennt kein Bild.</translation>
    </message>
    <message>
        <source>The session that is there cannot be read (%1). Saving replaces it.</source>
        <translation>Die Sitzung, die dort liegt, ist nicht lesbar (%1). Sichern ersetzt sie.</translation>
    </message>
    <message>
        <source>The saved session cannot be read: %1</source>
        <translation>Die gesicherte Sitzung ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>The measurement in %1 was made on another picture: %2. Saving takes it over to this one.</source>
        <translation>Die Messung in %1 wurde an einem anderen Bild gemacht: %2. Sichern übernimmt sie für dieses.</translation>
    </message>
    <message>
        <source>Careful, %1. Nothing is overwritten until you confirm it.</source>
        <translation>Vorsicht, %1. Nichts wird überschrieben, bevor Sie es bestätigen.</translation>
    </message>
    <message numerus="yes">
        <source>%n point(s) of the session meet no wall and were left out.</source>
        <translation>
            <numerusform>%n Punkt der Sitzung trifft keine Wand und wurde weggelassen.</numerusform>
            <numerusform>%n Punkte der Sitzung treffen keine Wand und wurden weggelassen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 has %n frames, of which this is the first.</source>
        <translation>
            <numerusform>%1 hat %n Bild, von denen dies das erste ist.</numerusform>
            <numerusform>%1 hat %n Bilder, von denen dies das erste ist.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::Exporter</name>
    <message>
        <source>%1 is no longer there. The measurement is saved all the same.</source>
        <translation>%1 ist nicht mehr da. Die Messung wird trotzdem gesichert.</translation>
    </message>
    <message>
        <source>%1 has changed since it was opened; the measurement was made before.</source>
        <translation>%1 hat sich seit dem Öffnen geändert; die Messung ist von vorher.</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else. Saving replaces it.</source>
        <translation>%1 wurde von jemand anderem geändert. Sichern ersetzt es.</translation>
    </message>
    <message>
        <source>%1 is there already. Saving replaces it.</source>
        <translation>%1 ist schon da. Sichern ersetzt es.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Gesichert als %1.</translation>
    </message>
    <message>
        <source>Written: %1. What it shows was neither set nor confirmed.</source>
        <translation>Geschrieben: %1. Was es zeigt, wurde weder gesetzt noch bestätigt.</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
    <message>
        <source>There is no value to copy yet.</source>
        <translation>Es gibt noch keinen Wert zum Kopieren.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Kopiert: %1</translation>
    </message>
    <message>
        <source>A report is being written already.</source>
        <translation>Ein Bericht wird schon geschrieben.</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::FeatureModel</name>
    <message numerus="yes">
        <source>%n more click(s)</source>
        <translation>
            <numerusform>noch %n Klick</numerusform>
            <numerusform>noch %n Klicks</numerusform>
        </translation>
    </message>
    <message>
        <source>not used</source>
        <translation>nicht verwendet</translation>
    </message>
    <message>
        <source>up to %1 px off</source>
        <translation>bis %1 px daneben</translation>
    </message>
    <message>
        <source>Joint %1</source>
        <translation>Fuge %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Linie %1</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::FieldModel</name>
    <message>
        <source>Slider</source>
        <translation>Schieber</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::FilmBrowser</name>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
    <message>
        <source>This frame is a picture already: leave the counter empty, and change it there.</source>
        <translation>Dieses Einzelbild ist schon ein Bild: Den Zähler leer lassen und dort ändern.</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::Guidance</name>
    <message>
        <source>Click the first laser spot. Esc gives up.</source>
        <translation>Den ersten Laserpunkt anklicken. Esc bricht ab.</translation>
    </message>
    <message>
        <source>Click the second laser spot. Esc gives up.</source>
        <translation>Den zweiten Laserpunkt anklicken. Esc bricht ab.</translation>
    </message>
    <message>
        <source>Click along a feature of the wall that runs along the pipe: a seam, the water&apos;s edge. &quot;Points&quot; goes back to measuring.</source>
        <translation>Entlang eines Merkmals klicken, das der Wand folgt: eine Naht, der Wasserrand. „Punkte“ kehrt zum Messen zurück.</translation>
    </message>
    <message>
        <source>Click on the edge of a joint: from the third click on the ring follows.</source>
        <translation>Auf den Rand einer Fuge klicken: vom dritten Klick an folgt der Ring.</translation>
    </message>
    <message>
        <source>The ring follows. Click more of the edge, or begin another joint.</source>
        <translation>Der Ring folgt. Mehr vom Rand anklicken oder eine weitere Fuge beginnen.</translation>
    </message>
    <message>
        <source>A drag pans the picture. Press &quot;Pan&quot; again to move the model.</source>
        <translation>Ziehen verschiebt das Bild. „Hand“ erneut drücken, um das Modell zu bewegen.</translation>
    </message>
    <message>
        <source>A drag moves the pipe&apos;s far end. Press &quot;Far end&quot; again to move the pipe.</source>
        <translation>Ziehen verschiebt das ferne Ende. „Fernes Ende“ erneut drücken, um das Rohr zu bewegen.</translation>
    </message>
    <message>
        <source>If it matches already, press &quot;Confirm&quot;.</source>
        <translation>Passt es schon, „Bestätigen“ drücken.</translation>
    </message>
    <message>
        <source>Open a picture: press Open, or drop pictures onto this window.</source>
        <translation>Ein Bild öffnen: Öffnen drücken oder Bilder auf dieses Fenster ziehen.</translation>
    </message>
    <message>
        <source>A click sets point %1; inside the dots it closes the outline. Shift+click, or a finger held down, sets a point there all the same.</source>
        <translation>Ein Klick setzt Punkt %1; innerhalb der Tupfen schließt er den Umriss. Umschalt+Klick oder ein ruhender Finger setzt dort dennoch einen Punkt.</translation>
    </message>
    <message>
        <source>No scale yet: press &quot;Laser spots&quot; and click the two spots, type mm per pixel, or load a calibration file. A click sets point %1.</source>
        <translation>Noch kein Maßstab: „Laserpunkte“ drücken und beide anklicken, mm je Pixel eintippen oder eine Kalibrierdatei laden. Ein Klick setzt Punkt %1.</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::MeasurementEditor</name>
    <message>
        <source>Fit the field of view</source>
        <translation>Bildwinkel anpassen</translation>
    </message>
    <message>
        <source>Click a joint</source>
        <translation>Fuge anklicken</translation>
    </message>
    <message>
        <source>Click a line</source>
        <translation>Linie anklicken</translation>
    </message>
    <message>
        <source>Nudge click</source>
        <translation>Klick rücken</translation>
    </message>
    <message>
        <source>Click along another line of the wall.</source>
        <translation>Entlang einer weiteren Linie der Wand klicken.</translation>
    </message>
    <message>
        <source>Click on the edge of another joint.</source>
        <translation>Auf den Rand einer weiteren Fuge klicken.</translation>
    </message>
    <message>
        <source>Remove from the alignment</source>
        <translation>Aus der Ausrichtung entfernen</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>Das ist keine Zahl.</translation>
    </message>
    <message>
        <source>Distance of a joint</source>
        <translation>Abstand einer Fuge</translation>
    </message>
    <message>
        <source>There is no aligned picture before this one.</source>
        <translation>Vor diesem gibt es kein ausgerichtetes Bild.</translation>
    </message>
    <message>
        <source>Align as before</source>
        <translation>Wie zuvor ausrichten</translation>
    </message>
    <message>
        <source>That is beside the picture.</source>
        <translation>Das liegt neben dem Bild.</translation>
    </message>
    <message>
        <source>No points here: drag the pipe, and set the angle.</source>
        <translation>Keine Punkte hier: das Rohr ziehen und den Winkel setzen.</translation>
    </message>
    <message>
        <source>The pipe&apos;s wall is not there: no point was set.</source>
        <translation>Dort ist die Rohrwand nicht: kein Punkt gesetzt.</translation>
    </message>
    <message>
        <source>Set point</source>
        <translation>Punkt setzen</translation>
    </message>
    <message>
        <source>That point lies beyond the modelled pipe: the line of sight hardly meets the wall there. Backspace drops it.</source>
        <translation>Der Punkt liegt hinter dem Modell des Rohres: der Sehstrahl trifft die Wand dort kaum. Rücktaste verwirft ihn.</translation>
    </message>
    <message>
        <source>The pipe&apos;s wall is not there: the level stays.</source>
        <translation>Dort ist die Rohrwand nicht: der Stand bleibt.</translation>
    </message>
    <message>
        <source>Water level</source>
        <translation>Wasserstand</translation>
    </message>
    <message>
        <source>That is beyond the modelled pipe, where the line of sight hardly meets the wall: click nearer.</source>
        <translation>Das liegt hinter dem Modell des Rohres, wo der Sehstrahl die Wand kaum trifft: näher klicken.</translation>
    </message>
    <message>
        <source>Move click</source>
        <translation>Klick verschieben</translation>
    </message>
    <message>
        <source>Move point</source>
        <translation>Punkt verschieben</translation>
    </message>
    <message>
        <source>Size of the mouth</source>
        <translation>Größe der Mündung</translation>
    </message>
    <message>
        <source>Move model</source>
        <translation>Modell verschieben</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Neigung</translation>
    </message>
    <message>
        <source>Nudge point</source>
        <translation>Punkt rücken</translation>
    </message>
    <message>
        <source>The pipe&apos;s wall ends there.</source>
        <translation>Dort endet die Rohrwand.</translation>
    </message>
    <message>
        <source>No scale: %1.</source>
        <translation>Kein Maßstab: %1.</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>Kalibrieren</translation>
    </message>
    <message>
        <source>the pipe&apos;s direction: click another joint, or lines</source>
        <translation>die Richtung des Rohres: eine weitere Fuge oder Linien anklicken</translation>
    </message>
    <message>
        <source>the mouth&apos;s place: click a joint</source>
        <translation>der Ort der Mündung: eine Fuge anklicken</translation>
    </message>
    <message>
        <source>the field of view: give two joints their distance</source>
        <translation>der Bildwinkel: zwei Fugen ihren Abstand geben</translation>
    </message>
    <message>
        <source>Fitted: clicks lie %1 px off, at most %2 px.</source>
        <translation>Angepasst: Klicks liegen %1 px daneben, höchstens %2 px.</translation>
    </message>
    <message>
        <source>Not determined: %1.</source>
        <translation>Nicht bestimmt: %1.</translation>
    </message>
    <message>
        <source>Point %1 lies beyond the modelled pipe</source>
        <translation>Punkt %1 liegt hinter dem Modell des Rohres</translation>
    </message>
    <message>
        <source>Length of the path</source>
        <translation>Länge des Weges</translation>
    </message>
    <message>
        <source>no scale yet</source>
        <translation>noch kein Maßstab</translation>
    </message>
    <message>
        <source>%1 mm per pixel</source>
        <translation>%1 mm je Pixel</translation>
    </message>
    <message>
        <source>Pipe record</source>
        <translation>Rohrdaten</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Measure again</source>
        <translation>Nochmals messen</translation>
    </message>
    <message>
        <source>Drop last point</source>
        <translation>Letzten Punkt verwerfen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Reset alignment</source>
        <translation>Ausrichtung zurücksetzen</translation>
    </message>
    <message>
        <source>Calibration file</source>
        <translation>Kalibrierdatei</translation>
    </message>
    <message>
        <source>%1 gives no scale for a diameter of %2 mm.</source>
        <translation>%1 ergibt keinen Maßstab für einen Durchmesser von %2 mm.</translation>
    </message>
    <message>
        <source>Far end</source>
        <translation>Fernes Ende</translation>
    </message>
    <message>
        <source>Viewing direction</source>
        <translation>Blickrichtung</translation>
    </message>
    <message>
        <source>Bend or joint</source>
        <translation>Bogen oder Knick</translation>
    </message>
    <message>
        <source>View style</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>The clicked joints and lines hold the model. Remove them to move it.</source>
        <translation>Die angeklickten Fugen und Linien halten das Modell. Zum Bewegen diese entfernen.</translation>
    </message>
    <message>
        <source>Drop click</source>
        <translation>Klick verwerfen</translation>
    </message>
    <message>
        <source>No edge was found: %1. The model stays.</source>
        <translation>Kein Rand gefunden: %1. Das Modell bleibt.</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Fangen</translation>
    </message>
    <message numerus="yes">
        <source>The joint&apos;s edge was found at %n place(s).</source>
        <translation>
            <numerusform>Der Rand der Fuge wurde an %n Stelle gefunden.</numerusform>
            <numerusform>Der Rand der Fuge wurde an %n Stellen gefunden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its uncertainty cannot be told</source>
        <translation>Seine Unsicherheit ist nicht anzugeben</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::MeasurementModel</name>
    <message>
        <source>Another measurement</source>
        <translation>Weitere Messung</translation>
    </message>
    <message>
        <source>Choose measurement</source>
        <translation>Messung wählen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Remove measurement</source>
        <translation>Messung entfernen</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::PipeRecords</name>
    <message>
        <source>cannot be read: %1</source>
        <translation>nicht lesbar: %1</translation>
    </message>
    <message>
        <source>expected a JSON object: %1</source>
        <translation>ein JSON-Objekt erwartet: %1</translation>
    </message>
    <message>
        <source>The nominal size is a whole number from 1 to %1.</source>
        <translation>Die Nennweite ist eine ganze Zahl von 1 bis %1.</translation>
    </message>
    <message>
        <source>The unit is one of %1.</source>
        <translation>Die Einheit ist eine von %1.</translation>
    </message>
    <message>
        <source>Pipe record: %1 %2.</source>
        <translation>Rohrdaten: %1 %2.</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::ReportJob</name>
    <message>
        <source>Report: page %1 of %2</source>
        <translation>Bericht: Seite %1 von %2</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
</context>
<context>
    <name>FeatureRow</name>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Distance of %1 from the first joint, in mm</source>
        <translation>Abstand von %1 zur ersten Fuge, in mm</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>Field</name>
    <message>
        <source>Nominal diameter</source>
        <translation>Nenndurchmesser</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Direction, o&apos;clock</source>
        <translation>Richtung, Uhr</translation>
    </message>
    <message>
        <source>Laser distance</source>
        <translation>Laserabstand</translation>
    </message>
    <message>
        <source>Scale, mm per pixel</source>
        <translation>Maßstab, mm je Pixel</translation>
    </message>
    <message>
        <source>Shift left</source>
        <translation>Versatz nach links</translation>
    </message>
    <message>
        <source>Camera height</source>
        <translation>Kamerahöhe</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Neigung</translation>
    </message>
    <message>
        <source>Field of view</source>
        <translation>Bildwinkel</translation>
    </message>
    <message>
        <source>Mouth size</source>
        <translation>Größe der Mündung</translation>
    </message>
    <message>
        <source>Far end left</source>
        <translation>Fernes Ende links</translation>
    </message>
    <message>
        <source>Far end down</source>
        <translation>Fernes Ende unten</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>Das ist keine Zahl.</translation>
    </message>
    <message>
        <source>From %1 to %2 %3, please.</source>
        <translation>Bitte von %1 bis %2 %3.</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Zähler</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>Open pictures</source>
        <translation>Bilder öffnen</translation>
    </message>
    <message>
        <source>Load a camera calibration</source>
        <translation>Eine Kamerakalibrierung laden</translation>
    </message>
    <message>
        <source>Load a pipe record</source>
        <translation>Rohrdaten laden</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Sichern unter</translation>
    </message>
    <message>
        <source>Load a lens</source>
        <translation>Ein Objektiv laden</translation>
    </message>
</context>
<context>
    <name>FilePicker</name>
    <message>
        <source>Folder above</source>
        <translation>Ordner darüber</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Nothing here to choose</source>
        <translation>Hier gibt es nichts zu wählen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open whole folder</source>
        <translation>Ganzen Ordner öffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
</context>
<context>
    <name>FileRow</name>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>gewählt</translation>
    </message>
</context>
<context>
    <name>FilmPanel</name>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Bild %1 von %2</translation>
    </message>
    <message>
        <source>Place in the film</source>
        <translation>Stelle im Film</translation>
    </message>
    <message>
        <source>Back by %1 frames</source>
        <translation>%1 Bilder zurück</translation>
    </message>
    <message>
        <source>The frame before</source>
        <translation>Das Bild davor</translation>
    </message>
    <message>
        <source>The next frame</source>
        <translation>Das nächste Bild</translation>
    </message>
    <message>
        <source>Forward by %1 frames</source>
        <translation>%1 Bilder vor</translation>
    </message>
    <message>
        <source>%1 · frame %2 of %3</source>
        <translation>%1 · Bild %2 von %3</translation>
    </message>
    <message>
        <source>Counter, m</source>
        <translation>Zähler, m</translation>
    </message>
    <message>
        <source>Metres that the counter in the picture shows</source>
        <translation>Meter, die der Zähler im Bild zeigt</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Make this frame a picture, and measure on it</source>
        <translation>Dieses Filmbild zum Bild machen und darauf messen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Back to the pictures</source>
        <translation>Zurück zu den Bildern</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Mouse: click sets a point, drag moves the model or a point, wheel zooms, middle drag pans. Touch: tap sets a point, hold aims with the loupe, drag moves, two fingers zoom, pan and roll.</source>
        <translation>Maus: Klick setzt einen Punkt, Ziehen bewegt das Modell oder einen Punkt, das Rad vergrößert, Ziehen mit der mittleren Taste verschiebt. Finger: Tippen setzt einen Punkt, Halten zielt mit der Lupe, Ziehen bewegt, zwei Finger vergrößern, verschieben und neigen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Kind</name>
    <message>
        <source>A click lengthens the line. Drag a point, or nudge it with the arrow keys.</source>
        <translation>Ein Klick verlängert die Linie. Punkte lassen sich ziehen oder mit den Pfeiltasten rücken.</translation>
    </message>
    <message>
        <source>Two points are a width; with a third click the length of the path is measured. Drag a point, or nudge it with the arrow keys.</source>
        <translation>Zwei Punkte sind eine Breite; mit dem dritten Klick wird die Länge des Weges gemessen. Punkte lassen sich ziehen oder mit den Pfeiltasten rücken.</translation>
    </message>
    <message>
        <source>Crack width</source>
        <translation>Rissbreite</translation>
    </message>
    <message>
        <source>Click one edge of the crack. A drag pans the picture.</source>
        <translation>Einen Rand des Risses anklicken. Ziehen verschiebt das Bild.</translation>
    </message>
    <message>
        <source>Click the other edge of the crack.</source>
        <translation>Den anderen Rand des Risses anklicken.</translation>
    </message>
    <message>
        <source>Pipe dimension</source>
        <translation>Rohrmaß</translation>
    </message>
    <message>
        <source>Click the other end on the wall.</source>
        <translation>Das andere Ende auf der Wand anklicken.</translation>
    </message>
    <message>
        <source>Drag the pipe into place, then click where the water meets the wall.</source>
        <translation>Das Rohr zurechtziehen, dann anklicken, wo das Wasser die Wand trifft.</translation>
    </message>
    <message>
        <source>Water level</source>
        <translation>Wasserstand</translation>
    </message>
    <message>
        <source>Drag the pipe into place; set angle, size and direction until the yellow curve meets the branch.</source>
        <translation>Das Rohr zurechtziehen; Winkel, Größe und Richtung setzen, bis die gelbe Kurve den Abzweig trifft.</translation>
    </message>
    <message>
        <source>Branch angle</source>
        <translation>Abzweigwinkel</translation>
    </message>
    <message>
        <source>Branch size</source>
        <translation>Abzweiggröße</translation>
    </message>
    <message>
        <source>Drag the pipe into place; set angle and direction until the circles follow the bend.</source>
        <translation>Das Rohr zurechtziehen; Winkel und Richtung setzen, bis die Kreise dem Bogen folgen.</translation>
    </message>
    <message>
        <source>Bend angle</source>
        <translation>Bogenwinkel</translation>
    </message>
    <message>
        <source>Piece length</source>
        <translation>Stücklänge</translation>
    </message>
    <message>
        <source>Cross section</source>
        <translation>Querschnitt</translation>
    </message>
    <message>
        <source>Plane depth</source>
        <translation>Tiefe der Ebene</translation>
    </message>
    <message>
        <source>Set the plane&apos;s depth, then click along the outline on the plane.</source>
        <translation>Die Tiefe der Ebene setzen, dann auf der Ebene entlang des Umrisses klicken.</translation>
    </message>
    <message>
        <source>A click sets point %1 of the outline; two points measure a length.</source>
        <translation>Ein Klick setzt Punkt %1 des Umrisses; zwei Punkte messen eine Länge.</translation>
    </message>
    <message>
        <source>A click sets point %1; one near the first point closes the outline.</source>
        <translation>Ein Klick setzt Punkt %1; einer nahe dem ersten Punkt schließt den Umriss.</translation>
    </message>
    <message>
        <source>Closed. Drag a point to correct it; a click starts a new outline.</source>
        <translation>Geschlossen. Zum Verbessern einen Punkt ziehen; ein Klick beginnt einen neuen Umriss.</translation>
    </message>
    <message>
        <source>Click joints or drag the green pipe to align it, then click one end on the wall.</source>
        <translation>Zum Ausrichten Fugen anklicken oder das grüne Rohr ziehen, dann ein Ende auf der Wand anklicken.</translation>
    </message>
</context>
<context>
    <name>KindButton</name>
    <message>
        <source>chosen</source>
        <translation>gewählt</translation>
    </message>
</context>
<context>
    <name>KindPanel</name>
    <message>
        <source>Laser spots</source>
        <translation>Laserpunkte</translation>
    </message>
    <message>
        <source>Set the scale with two clicks on the laser spots</source>
        <translation>Den Maßstab mit zwei Klicks auf die Laserpunkte setzen</translation>
    </message>
    <message>
        <source>Scale file…</source>
        <translation>Maßstabsdatei…</translation>
    </message>
    <message>
        <source>Load a camera calibration file</source>
        <translation>Eine Kamerakalibrierdatei laden</translation>
    </message>
    <message>
        <source>Seen</source>
        <translation>Blick</translation>
    </message>
    <message>
        <source>downstream</source>
        <translation>stromab</translation>
    </message>
    <message>
        <source>upstream</source>
        <translation>stromauf</translation>
    </message>
    <message>
        <source>Shows</source>
        <translation>Zeigt</translation>
    </message>
    <message>
        <source>bend</source>
        <translation>Bogen</translation>
    </message>
    <message>
        <source>joint</source>
        <translation>Knick</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Save all the same?</source>
        <translation>Trotzdem sichern?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Save before closing?</source>
        <translation>Vor dem Schließen sichern?</translation>
    </message>
    <message numerus="yes">
        <source>%n measurement(s) are not saved.</source>
        <translation>
            <numerusform>%n Messung ist nicht gesichert.</numerusform>
            <numerusform>%n Messungen sind nicht gesichert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Recent pictures</source>
        <translation>Letzte Bilder</translation>
    </message>
    <message>
        <source>Pipe record</source>
        <translation>Rohrdaten</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>As the system&apos;s</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>Camera and lens</source>
        <translation>Kamera und Objektiv</translation>
    </message>
    <message>
        <source>Colours and units</source>
        <translation>Farben und Einheiten</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
    <message>
        <source>Name of the measurement</source>
        <translation>Name der Messung</translation>
    </message>
    <message>
        <source>such as: crack A</source>
        <translation>etwa: Riss A</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Use name</source>
        <translation>Name übernehmen</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>%1 down</source>
        <translation>%1 verringern</translation>
    </message>
    <message>
        <source>%1 up</source>
        <translation>%1 erhöhen</translation>
    </message>
</context>
<context>
    <name>PictureCard</name>
    <message>
        <source>trouble</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>nicht gesichert</translation>
    </message>
    <message>
        <source>measured</source>
        <translation>gemessen</translation>
    </message>
</context>
<context>
    <name>PictureStage</name>
    <message>
        <source>Picture %1</source>
        <translation>Bild %1</translation>
    </message>
    <message>
        <source>Drop pictures from inside a pipe here</source>
        <translation>Bilder aus dem Inneren eines Rohres hierher ziehen</translation>
    </message>
    <message>
        <source>Open pictures</source>
        <translation>Bilder öffnen</translation>
    </message>
</context>
<context>
    <name>PictureStrip</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <source>Not measured</source>
        <translation>Nicht gemessen</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gesichert</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Number or name</source>
        <translation>Nr. oder Name</translation>
    </message>
    <message>
        <source>Go to a picture: its number, or a part of its name</source>
        <translation>Zu einem Bild: seine Nummer oder ein Teil des Namens</translation>
    </message>
    <message>
        <source>Which pictures are listed: %1</source>
        <translation>Welche Bilder die Liste zeigt: %1</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>None of the pictures is like that</source>
        <translation>Kein Bild ist so</translation>
    </message>
</context>
<context>
    <name>RecordDialog</name>
    <message>
        <source>Pipe record</source>
        <translation>Rohrdaten</translation>
    </message>
    <message>
        <source>The nominal size is the model&apos;s diameter: lengths grow with it.</source>
        <translation>Die Nennweite ist der Durchmesser des Modells: Längen wachsen mit ihr.</translation>
    </message>
    <message>
        <source>Nominal size</source>
        <translation>Nennweite</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>From file…</source>
        <translation>Aus Datei…</translation>
    </message>
    <message>
        <source>Load the size from a record file</source>
        <translation>Die Nennweite aus einer Datei laden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Use size</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Use this size for the model</source>
        <translation>Diese Nennweite für das Modell übernehmen</translation>
    </message>
</context>
<context>
    <name>Text</name>
    <message>
        <source>no round pipe fits the clicks</source>
        <translation>kein rundes Rohr passt zu den Klicks</translation>
    </message>
    <message>
        <source>the clicks lie too near to each other, or on one side, to tell where the pipe is</source>
        <translation>die Klicks liegen zu nahe beieinander oder auf einer Seite, um zu sagen, wo das Rohr ist</translation>
    </message>
    <message>
        <source>expected a diameter, a picture and an alignment to begin with, found other numbers</source>
        <translation>einen Durchmesser, ein Bild und eine Ausrichtung zum Beginnen erwartet, andere Zahlen gefunden</translation>
    </message>
    <message>
        <source>expected three clicks on a joint, or two on each of two lines along the pipe</source>
        <translation>drei Klicks auf eine Fuge erwartet, oder je zwei auf zwei Linien entlang des Rohres</translation>
    </message>
    <message>
        <source>the clicks say that the camera stands outside of the pipe</source>
        <translation>nach den Klicks steht die Kamera außerhalb des Rohres</translation>
    </message>
    <message>
        <source>the first joint lies too far above or below the middle of the picture</source>
        <translation>die erste Fuge liegt zu weit über oder unter der Bildmitte</translation>
    </message>
    <message>
        <source>the clicks say that the first joint or the field of view has an impossible size</source>
        <translation>nach den Klicks hat die erste Fuge oder der Bildwinkel eine unmögliche Größe</translation>
    </message>
    <message>
        <source>the clicks say that the far end lies outside of the first joint</source>
        <translation>nach den Klicks liegt das ferne Ende außerhalb der ersten Fuge</translation>
    </message>
    <message>
        <source>is a folder, not a calibration file</source>
        <translation>ist ein Ordner, keine Kalibrierdatei</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>nicht lesbar: %1</translation>
    </message>
    <message>
        <source>is too large for a calibration file</source>
        <translation>ist zu groß für eine Kalibrierdatei</translation>
    </message>
    <message>
        <source>holds no calibration: expected lines LASER;;;MM or DIAMETER;PIXELS;MM</source>
        <translation>enthält keine Kalibrierung: Zeilen LASER;;;MM oder DURCHMESSER;PIXEL;MM erwartet</translation>
    </message>
    <message>
        <source>the calibration names no distance of the laser spots</source>
        <translation>die Kalibrierung nennt keinen Abstand der Laserpunkte</translation>
    </message>
    <message>
        <source>the two laser spots are the same pixel</source>
        <translation>die beiden Laserpunkte sind dasselbe Pixel</translation>
    </message>
    <message>
        <source>expected a limit such as &quot;&lt; 0.5 mm&quot; or &quot;&gt; 20 %&quot;, found &quot;%1&quot;</source>
        <translation>eine Grenze wie &quot;&lt; 0.5 mm&quot; oder &quot;&gt; 20 %&quot; erwartet, &quot;%1&quot; gefunden</translation>
    </message>
    <message>
        <source>not set: set the value until the model matches the picture, or confirm it</source>
        <translation>nicht gesetzt: den Wert setzen, bis das Modell zum Bild passt, oder ihn bestätigen</translation>
    </message>
    <message>
        <source>no scale yet: give millimetres per pixel, a calibration file, or the two laser spots</source>
        <translation>noch kein Maßstab: Millimeter je Pixel, eine Kalibrierdatei oder die zwei Laserpunkte angeben</translation>
    </message>
    <message>
        <source>needs at least two points</source>
        <translation>braucht mindestens zwei Punkte</translation>
    </message>
    <message>
        <source>the points lie on one place</source>
        <translation>die Punkte liegen an einer Stelle</translation>
    </message>
    <message>
        <source>exists already and was left as it is</source>
        <translation>ist schon da und wurde so gelassen</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>lässt sich nicht schreiben: %1</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>is a folder, not a picture</source>
        <translation>ist ein Ordner, kein Bild</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the file is too large: %1 MiB, at most %2 are read</source>
        <translation>die Datei ist zu groß: %1 MiB, höchstens %2 werden gelesen</translation>
    </message>
    <message>
        <source>the picture is too large: %1 x %2 pixels, at most %3 megapixels are read</source>
        <translation>das Bild ist zu groß: %1 x %2 Pixel, höchstens %3 Megapixel werden gelesen</translation>
    </message>
    <message>
        <source>is no picture in a format that is read here: %1</source>
        <translation>ist kein Bild in einem Format, das hier gelesen wird: %1</translation>
    </message>
    <message>
        <source>the picture has no size: its header is damaged or cut off, or tells a size of zero</source>
        <translation>das Bild hat keine Größe: sein Kopf ist beschädigt oder abgeschnitten oder nennt die Größe null</translation>
    </message>
    <message>
        <source>the picture is cut off: the file ends too early</source>
        <translation>das Bild ist abgeschnitten: die Datei endet zu früh</translation>
    </message>
    <message>
        <source>the picture is damaged or cut off: %1</source>
        <translation>das Bild ist beschädigt oder abgeschnitten: %1</translation>
    </message>
    <message>
        <source>cannot be read to its end</source>
        <translation>lässt sich nicht zu Ende lesen</translation>
    </message>
    <message>
        <source>the picture shows too little of the ring</source>
        <translation>das Bild zeigt zu wenig vom Ring</translation>
    </message>
    <message>
        <source>no edge runs along enough of the ring: found %1 % of it</source>
        <translation>kein Rand folgt genug vom Ring: %1 % gefunden</translation>
    </message>
    <message>
        <source>two edges fit the ring equally well</source>
        <translation>zwei Ränder passen gleich gut zum Ring</translation>
    </message>
    <message>
        <source>expected finite numbers</source>
        <translation>endliche Zahlen erwartet</translation>
    </message>
    <message>
        <source>expected a number from %1 to %2, found %3</source>
        <translation>eine Zahl von %1 bis %2 erwartet, %3 gefunden</translation>
    </message>
    <message>
        <source>expected two places, found %1</source>
        <translation>zwei Orte erwartet, %1 gefunden</translation>
    </message>
    <message>
        <source>is too large for a session</source>
        <translation>ist zu groß für eine Sitzung</translation>
    </message>
    <message>
        <source>the session was made on a picture of %1 x %2 pixels, this one has %3 x %4</source>
        <translation>die Sitzung wurde an einem Bild von %1 x %2 Pixeln gemacht, dieses hat %3 x %4</translation>
    </message>
    <message>
        <source>the picture&apos;s content is not the one that the session was made on</source>
        <translation>der Inhalt des Bildes ist nicht der, an dem die Sitzung gemacht wurde</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>die Zahl %1</translation>
    </message>
    <message>
        <source>the text &quot;%1&quot;</source>
        <translation>der Text &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>erwartet: %1, gefunden: %2</translation>
    </message>
    <message>
        <source>expected a pixel or a position</source>
        <translation>ein Pixel oder eine Position erwartet</translation>
    </message>
    <message>
        <source>expected an object, found %1</source>
        <translation>erwartet: ein Objekt, gefunden: %1</translation>
    </message>
    <message>
        <source>expected a list of x and y in pixels, found %1</source>
        <translation>erwartet: eine Liste aus x und y in Pixeln, gefunden: %1</translation>
    </message>
    <message>
        <source>expected a number, found %1</source>
        <translation>erwartet: eine Zahl, gefunden: %1</translation>
    </message>
    <message>
        <source>expected &quot;%1&quot;, found %2</source>
        <translation>erwartet: &quot;%1&quot;, gefunden: %2</translation>
    </message>
    <message>
        <source>the session has version %1.%2, this program reads up to version %3; please use a newer Zalento</source>
        <translation>die Sitzung hat Version %1.%2, dieses Programm liest bis Version %3; bitte ein neueres Zalento verwenden</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>eines von %1</translation>
    </message>
    <message>
        <source>not a JSON object: %1 in line %2</source>
        <translation>kein JSON-Objekt: %1 in Zeile %2</translation>
    </message>
    <message>
        <source>not a JSON object: found a list</source>
        <translation>kein JSON-Objekt: eine Liste gefunden</translation>
    </message>
    <message>
        <source>the kind %1 lays no pipe over the picture</source>
        <translation>die Art %1 legt kein Rohr über das Bild</translation>
    </message>
    <message>
        <source>the range from %1 to %2 mm is empty</source>
        <translation>der Bereich von %1 bis %2 mm ist leer</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are too many: give more millimetres per pixel</source>
        <translation>%1 x %2 Pixel sind zu viele: mehr Millimeter je Pixel angeben</translation>
    </message>
    <message>
        <source>this build has no OpenCV, which finds edges in pictures</source>
        <translation>dieses Programm ist ohne OpenCV gebaut, das Ränder in Bildern findet</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a list of width and height in whole pixels</source>
        <translation>eine Liste aus Breite und Höhe in ganzen Pixeln</translation>
    </message>
    <message>
        <source>a list of x and y in pixels</source>
        <translation>eine Liste aus x und y in Pixeln</translation>
    </message>
    <message>
        <source>a list of x, y and z in the scene</source>
        <translation>eine Liste aus x, y und z im Raum</translation>
    </message>
    <message>
        <source>a list of places [x, y]</source>
        <translation>eine Liste von Orten [x, y]</translation>
    </message>
    <message>
        <source>a number or null</source>
        <translation>eine Zahl oder null</translation>
    </message>
    <message>
        <source>&quot;metric&quot; or &quot;imperial&quot;</source>
        <translation>&quot;metric&quot; oder &quot;imperial&quot;</translation>
    </message>
    <message>
        <source>&quot;downstream&quot; or &quot;upstream&quot;</source>
        <translation>&quot;downstream&quot; oder &quot;upstream&quot;</translation>
    </message>
    <message>
        <source>&quot;measure&quot;, &quot;ends&quot; or &quot;full&quot;</source>
        <translation>&quot;measure&quot;, &quot;ends&quot; oder &quot;full&quot;</translation>
    </message>
    <message>
        <source>expected fx, 0, cx, 0, fy, cy, 0, 0, 1, row by row</source>
        <translation>erwartet wurden fx, 0, cx, 0, fy, cy, 0, 0, 1, Zeile für Zeile</translation>
    </message>
    <message>
        <source>expected focal lengths above 0 and up to %1 pixels, found %2 and %3</source>
        <translation>erwartet wurden Brennweiten über 0 und bis %1 Pixel, gefunden %2 und %3</translation>
    </message>
    <message>
        <source>expected 4, 5 or 8 numbers, found %1</source>
        <translation>erwartet wurden 4, 5 oder 8 Zahlen, gefunden %1</translation>
    </message>
    <message>
        <source>expected finite numbers up to %1</source>
        <translation>erwartet wurden endliche Zahlen bis %1</translation>
    </message>
    <message>
        <source>expected a width and a height in pixels</source>
        <translation>erwartet wurden Breite und Höhe in Pixeln</translation>
    </message>
    <message>
        <source>the picture of this lens would have a field of view of %1 degrees, expected %2 to %3</source>
        <translation>das Bild dieses Objektivs hätte ein Sichtfeld von %1 Grad, erwartet wurden %2 bis %3</translation>
    </message>
    <message>
        <source>expected a number from 0 to %1</source>
        <translation>erwartet wurde eine Zahl von 0 bis %1</translation>
    </message>
    <message>
        <source>estimated from joints</source>
        <translation>aus Fugen geschätzt</translation>
    </message>
    <message>
        <source>the joints need more clicks to tell the lens</source>
        <translation>die Fugen brauchen mehr Klicks, um das Objektiv zu verraten</translation>
    </message>
    <message>
        <source>no lens with one coefficient fits the joints</source>
        <translation>kein Objektiv mit einem Koeffizienten passt zu den Fugen</translation>
    </message>
    <message>
        <source>the joints do not tell the lens</source>
        <translation>die Fugen verraten das Objektiv nicht</translation>
    </message>
    <message>
        <source>the picture has a lens already</source>
        <translation>das Bild hat schon ein Objektiv</translation>
    </message>
    <message>
        <source>expected %1 joints with three clicks or more, found %2</source>
        <translation>erwartet wurden %1 Fugen mit drei Klicks oder mehr, gefunden %2</translation>
    </message>
    <message>
        <source>the joints do not tell the lens from a straight one: k1 is %1 with a standard uncertainty of %2</source>
        <translation>die Fugen unterscheiden das Objektiv nicht von einem geraden: k1 ist %1 mit einer Standardunsicherheit von %2</translation>
    </message>
    <message>
        <source>expected plumb_bob or rational_polynomial, found %1</source>
        <translation>erwartet wurde plumb_bob oder rational_polynomial, gefunden %1</translation>
    </message>
    <message>
        <source>a list of 9 numbers, row by row</source>
        <translation>eine Liste von 9 Zahlen, Zeile für Zeile</translation>
    </message>
    <message>
        <source>is no file of a camera: expected OpenCV&apos;s YAML or JSON</source>
        <translation>ist keine Datei einer Kamera: erwartet wurde YAML oder JSON von OpenCV</translation>
    </message>
    <message>
        <source>is a folder, not a file of a camera</source>
        <translation>ist ein Ordner, keine Datei einer Kamera</translation>
    </message>
    <message>
        <source>is too large for a file of a camera</source>
        <translation>ist zu groß für die Datei einer Kamera</translation>
    </message>
    <message>
        <source>the lens is for pictures of %1 x %2 pixels, this one has %3 x %4</source>
        <translation>das Objektiv gilt für Bilder mit %1 x %2 Pixeln, dieses hat %3 x %4</translation>
    </message>
    <message>
        <source>the picture is too long: up to %1 pixels a side are undistorted</source>
        <translation>das Bild ist zu lang: entzerrt werden bis zu %1 Pixel je Seite</translation>
    </message>
    <message>
        <source>a list of numbers</source>
        <translation>eine Liste von Zahlen</translation>
    </message>
    <message>
        <source>&quot;square&quot; or &quot;all&quot;</source>
        <translation>„square“ oder „all“</translation>
    </message>
    <message>
        <source>the lens maps nothing to the click at %1,%2</source>
        <translation>das Objektiv bildet nichts auf den Klick bei %1,%2 ab</translation>
    </message>
    <message>
        <source>this build has no OpenCV, which undistorts pictures</source>
        <translation>diese Fassung hat kein OpenCV, das Bilder entzerrt</translation>
    </message>
    <message>
        <source>this build has no OpenCV, which reads files of lenses</source>
        <translation>diese Fassung hat kein OpenCV, das Dateien von Objektiven liest</translation>
    </message>
    <message>
        <source>expected a name of one line and at most %1 characters, found &quot;%2&quot;</source>
        <translation>erwartet wird ein Name aus einer Zeile und höchstens %1 Zeichen, gefunden wurde &quot;%2&quot;</translation>
    </message>
    <message>
        <source>another measurement is named &quot;%1&quot;</source>
        <translation>eine andere Messung heißt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The picture has changed since it was measured.</source>
        <translation>Das Bild hat sich geändert, seit es vermessen wurde.</translation>
    </message>
    <message>
        <source>Without its overlay: nobody has set what it shows.</source>
        <translation>Ohne Modell: niemand hat gesetzt, was es zeigt.</translation>
    </message>
    <message>
        <source>Inspection report</source>
        <translation>Inspektionsbericht</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Pipe</source>
        <translation>Rohr</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>is too large for a record file</source>
        <translation>ist zu groß für eine Datei mit Rohrdaten</translation>
    </message>
    <message>
        <source>expected a JSON object: %1</source>
        <translation>ein JSON-Objekt erwartet: %1</translation>
    </message>
    <message>
        <source>expected a JSON object, found a list</source>
        <translation>ein JSON-Objekt erwartet, eine Liste gefunden</translation>
    </message>
    <message>
        <source>Scale 1 : %1, diameter %2 mm</source>
        <translation>Maßstab 1 : %1, Durchmesser %2 mm</translation>
    </message>
    <message>
        <source>measured</source>
        <translation>gemessen</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>not measured</source>
        <translation>nicht gemessen</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>gescheitert</translation>
    </message>
    <message>
        <source>Crack width</source>
        <translation>Rissbreite</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Water level</source>
        <translation>Wasserstand</translation>
    </message>
    <message>
        <source>Branch angle</source>
        <translation>Abzweigwinkel</translation>
    </message>
    <message>
        <source>Bend angle</source>
        <translation>Bogenwinkel</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Share of the section</source>
        <translation>Anteil am Querschnitt</translation>
    </message>
    <message>
        <source>Share of the diameter</source>
        <translation>Anteil am Durchmesser</translation>
    </message>
    <message>
        <source>below</source>
        <translation>darunter</translation>
    </message>
    <message>
        <source>above</source>
        <translation>darüber</translation>
    </message>
    <message>
        <source>cannot be decided at 95 %</source>
        <translation>zu 95 % nicht zu entscheiden</translation>
    </message>
    <message>
        <source>clicks</source>
        <translation>Klicks</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>alignment</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>field of view</source>
        <translation>Bildwinkel</translation>
    </message>
    <message>
        <source>laser</source>
        <translation>Laser</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>set by eye</source>
        <translation>nach Auge gesetzt</translation>
    </message>
    <message>
        <source>the uncertainty has no number</source>
        <translation>die Unsicherheit hat keine Zahl</translation>
    </message>
    <message>
        <source>%1, %2 results: mean %3 %5, standard deviation %4 %5</source>
        <translation>%1, %2 Ergebnisse: Mittel %3 %5, Standardabweichung %4 %5</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Camera height, %</source>
        <translation>Kamerahöhe, %</translation>
    </message>
    <message>
        <source>Far end, left</source>
        <translation>Fernes Ende, links</translation>
    </message>
    <message>
        <source>Far end, down</source>
        <translation>Fernes Ende, unten</translation>
    </message>
    <message>
        <source>Mouth, %</source>
        <translation>Mündung, %</translation>
    </message>
    <message>
        <source>Field of view, °</source>
        <translation>Bildwinkel, °</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>%1 mm a pixel</source>
        <translation>%1 mm je Pixel</translation>
    </message>
    <message>
        <source>Lens taken out</source>
        <translation>Objektiv herausgerechnet</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Rohrdaten</translation>
    </message>
    <message>
        <source>Pictures: %1; measurements: %2</source>
        <translation>Bilder: %1; Messungen: %2</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <source>Value, uncertainty (k = 2)</source>
        <translation>Wert, Unsicherheit (k = 2)</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Grenze</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>with its uncertainty (k = 2)</source>
        <translation>mit Unsicherheit (k = 2)</translation>
    </message>
    <message>
        <source>uncertain by</source>
        <translation>unsicher durch</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Folder: %1</source>
        <translation>Ordner: %1</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message>
        <source>1 joint</source>
        <translation>1 Fuge</translation>
    </message>
    <message>
        <source>%1 joints</source>
        <translation>%1 Fugen</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 Linie</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>%1 Linien</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>not fitted</source>
        <translation>nicht angepasst</translation>
    </message>
    <message>
        <source>fitted to %1, rms %2 px, largest %3 px</source>
        <translation>angepasst an %1, quadratisches Mittel %2 px, größte Abweichung %3 px</translation>
    </message>
    <message>
        <source>%1; not determined: %2</source>
        <translation>%1; nicht bestimmt: %2</translation>
    </message>
    <message>
        <source>the name of a measurement</source>
        <translation>der Name einer Messung</translation>
    </message>
    <message>
        <source>does not tell when its frames are shown</source>
        <translation>sagt nicht, wann seine Bilder gezeigt werden</translation>
    </message>
    <message>
        <source>can no longer be read</source>
        <translation>lässt sich nicht mehr lesen</translation>
    </message>
    <message>
        <source>frame %1 is damaged</source>
        <translation>Bild %1 ist beschädigt</translation>
    </message>
    <message>
        <source>cannot be read as a film: %1</source>
        <translation>lässt sich nicht als Film lesen: %1</translation>
    </message>
    <message>
        <source>has more than %1 megapixels</source>
        <translation>hat mehr als %1 Megapixel</translation>
    </message>
    <message>
        <source>this build has no FFmpeg, which reads films</source>
        <translation>diese Fassung hat kein FFmpeg, das Filme liest</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>%1, %2 s</source>
        <translation>%1, %2 s</translation>
    </message>
    <message>
        <source>frame %1 is too large</source>
        <translation>Bild %1 ist zu groß</translation>
    </message>
    <message>
        <source>mm a pixel</source>
        <translation>mm je Pixel</translation>
    </message>
    <message>
        <source>U of a point, mm</source>
        <translation>U eines Punkts, mm</translation>
    </message>
    <message>
        <source>expected one of %1, found &quot;%2&quot;</source>
        <translation>eines von %1 erwartet, „%2“ gefunden</translation>
    </message>
    <message>
        <source>%1 is not measured on object %2</source>
        <translation>%1 wird nicht an Objekt %2 gemessen</translation>
    </message>
    <message>
        <source>cannot be read as a film: it has no pictures</source>
        <translation>lässt sich nicht als Film lesen: Er hat keine Bilder</translation>
    </message>
    <message>
        <source>cannot be read as a film: it is damaged, incomplete or something else</source>
        <translation>lässt sich nicht als Film lesen: Er ist beschädigt, unvollständig oder etwas anderes</translation>
    </message>
</context>
<context>
    <name>ToolKey</name>
    <message>
        <source>chosen</source>
        <translation>gewählt</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Picture with overlay (PNG)</source>
        <translation>Bild mit Modell (PNG)</translation>
    </message>
    <message>
        <source>Overlay as vectors (SVG)</source>
        <translation>Modell als Vektoren (SVG)</translation>
    </message>
    <message>
        <source>Wall as a flat picture (PNG)</source>
        <translation>Wand als ebenes Bild (PNG)</translation>
    </message>
    <message>
        <source>Values of all pictures (CSV)</source>
        <translation>Werte aller Bilder (CSV)</translation>
    </message>
    <message>
        <source>Values of all pictures (JSON)</source>
        <translation>Werte aller Bilder (JSON)</translation>
    </message>
    <message>
        <source>Session to another place…</source>
        <translation>Sitzung an anderen Ort…</translation>
    </message>
    <message>
        <source>Pipe record</source>
        <translation>Rohrdaten</translation>
    </message>
    <message>
        <source>Type the pipe&apos;s nominal size, or load it from a record file</source>
        <translation>Die Nennweite des Rohres eintippen oder aus einer Datei laden</translation>
    </message>
    <message>
        <source>Menu: pictures opened lately, language, keys</source>
        <translation>Menü: letzte Bilder, Sprache, Tasten</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source> · %1 × %2</source>
        <translation> · %1 × %2</translation>
    </message>
    <message>
        <source>Save the picture with its overlay, the values, or a report</source>
        <translation>Das Bild mit Modell, die Werte oder einen Bericht sichern</translation>
    </message>
    <message>
        <source>Report on all pictures (PDF)</source>
        <translation>Bericht über alle Bilder (PDF)</translation>
    </message>
</context>
<context>
    <name>ValuePanel</name>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>no scale yet</source>
        <translation>noch kein Maßstab</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>Wert: %1</translation>
    </message>
    <message>
        <source> of the section</source>
        <translation> des Querschnitts</translation>
    </message>
    <message>
        <source> of the diameter</source>
        <translation> des Durchmessers</translation>
    </message>
</context>
<context>
    <name>WallPanel</name>
    <message>
        <source>Open a picture to see its wall made flat.</source>
        <translation>Ein Bild öffnen, um seine Wand eben zu sehen.</translation>
    </message>
    <message>
        <source>Plane, straightened</source>
        <translation>Ebene, entzerrt</translation>
    </message>
    <message>
        <source>Wall, unrolled</source>
        <translation>Wand, abgewickelt</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
</context>
<context>
    <name>ZoomKeys</name>
    <message>
        <source>Size of the picture: %1</source>
        <translation>Größe des Bildes: %1</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Hand</translation>
    </message>
    <message>
        <source>Drag pans the picture</source>
        <translation>Ziehen verschiebt das Bild</translation>
    </message>
</context>
</TS>
