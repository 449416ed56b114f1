<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_GB">
<context>
    <name>AlignPanel</name>
    <message>
        <source>Pipe</source>
        <translation>Tuyau</translation>
    </message>
    <message>
        <source>A drag moves the pipe</source>
        <translation>Glisser déplace le tuyau</translation>
    </message>
    <message>
        <source>Far end</source>
        <translation>Bout éloigné</translation>
    </message>
    <message>
        <source>A drag moves the pipe&apos;s far end</source>
        <translation>Glisser déplace le bout éloigné du tuyau</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinit.</translation>
    </message>
    <message>
        <source>Reset the alignment</source>
        <translation>Réinitialiser l&apos;alignement</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Clic</translation>
    </message>
    <message>
        <source>points</source>
        <translation>points</translation>
    </message>
    <message>
        <source>joint</source>
        <translation>joint</translation>
    </message>
    <message>
        <source>line</source>
        <translation>ligne</translation>
    </message>
    <message>
        <source>New joint</source>
        <translation>Nouveau joint</translation>
    </message>
    <message>
        <source>New line</source>
        <translation>Nouvelle ligne</translation>
    </message>
    <message>
        <source>The next click begins another one</source>
        <translation>Le prochain clic en commence un autre</translation>
    </message>
    <message>
        <source>Fit view</source>
        <translation>Angle de vue</translation>
    </message>
    <message>
        <source>Fit the field of view, too: two joints with a known distance give it</source>
        <translation>Ajuster aussi l&apos;angle de vue : deux joints à distance connue le donnent</translation>
    </message>
    <message>
        <source>As before</source>
        <translation>Idem</translation>
    </message>
    <message>
        <source>Take the alignment of the picture before this one</source>
        <translation>Reprendre l&apos;alignement de l&apos;image précédente</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Bloquer</translation>
    </message>
    <message>
        <source>The model stays where it is: a drag pans</source>
        <translation>Le modèle reste en place : glisser déplace l&apos;image</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>Anneaux</translation>
    </message>
    <message>
        <source>all</source>
        <translation>tous</translation>
    </message>
    <message>
        <source>ends</source>
        <translation>bouts</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Lens and field of view: load, keep under a name, or take one that was kept</source>
        <translation>Objectif et champ de vision : charger, garder sous un nom ou reprendre</translation>
    </message>
</context>
<context>
    <name>AssessmentPanel</name>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Limit: %1</source>
        <translation>Limite : %1</translation>
    </message>
</context>
<context>
    <name>CameraDialog</name>
    <message>
        <source>Take the field of view of %1</source>
        <translation>Prendre l&apos;angle de vue de %1</translation>
    </message>
    <message>
        <source>Forget %1</source>
        <translation>Oublier %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name of the camera</source>
        <translation>Nom de la caméra</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Camera and lens</source>
        <translation>Caméra et objectif</translation>
    </message>
    <message>
        <source>Lens: %1. The picture is shown without its distortion.</source>
        <translation>Objectif : %1. L’image est montrée sans sa distorsion.</translation>
    </message>
    <message>
        <source>No lens: the picture is shown as it was taken.</source>
        <translation>Pas d’objectif : l’image est montrée telle qu’elle a été prise.</translation>
    </message>
    <message>
        <source>Load lens…</source>
        <translation>Charger…</translation>
    </message>
    <message>
        <source>Load a file of OpenCV&apos;s form, as calibration programs write it</source>
        <translation>Charger un fichier au format d’OpenCV, tel que l’écrivent les programmes d’étalonnage</translation>
    </message>
    <message>
        <source>From joints</source>
        <translation>D’après les joints</translation>
    </message>
    <message>
        <source>Estimate the lens from three clicked joints</source>
        <translation>Estimer l’objectif d’après trois joints cliqués</translation>
    </message>
    <message>
        <source>Remove lens</source>
        <translation>Sans objectif</translation>
    </message>
    <message>
        <source>Show the picture as it was taken</source>
        <translation>Montrer l’image telle qu’elle a été prise</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Montré</translation>
    </message>
    <message>
        <source>full square</source>
        <translation>carré plein</translation>
    </message>
    <message>
        <source>all</source>
        <translation>tout</translation>
    </message>
    <message>
        <source>Kept for pictures of this size</source>
        <translation>Gardées pour les images de cette taille</translation>
    </message>
    <message>
        <source>Take the lens of %1</source>
        <translation>Prendre l’objectif de %1</translation>
    </message>
    <message>
        <source>Keep lens or field of view under this name</source>
        <translation>Garder l’objectif ou le champ de vision sous ce nom</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open pictures</source>
        <translation>Ouvrir des images</translation>
    </message>
    <message>
        <source>Save •</source>
        <translation>Enreg. •</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enreg.</translation>
    </message>
    <message>
        <source>Save the session beside the picture</source>
        <translation>Enregistrer la session à côté de l&apos;image</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the value</source>
        <translation>Copier la valeur</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Image suivante</translation>
    </message>
    <message>
        <source>↶ Undo</source>
        <translation>↶ Annuler</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Annuler : %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>↷ Redo</source>
        <translation>↷ Rétablir</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Rétablir : %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Give up what is under way</source>
        <translation>Abandonner ce qui est en cours</translation>
    </message>
    <message>
        <source>✕ Points</source>
        <translation>✕ Points</translation>
    </message>
    <message>
        <source>Clear all points</source>
        <translation>Effacer tous les points</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <source>Confirm the value as it is shown</source>
        <translation>Confirmer la valeur affichée</translation>
    </message>
    <message>
        <source>Measure again</source>
        <translation>Remesurer</translation>
    </message>
    <message>
        <source>Keep the value, and measure once more</source>
        <translation>Garder la valeur et mesurer encore une fois</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Map of what a pixel is worth; again: of the uncertainty</source>
        <translation>Carte de ce que vaut un pixel ; encore : de l&apos;incertitude</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>Paroi</translation>
    </message>
    <message>
        <source>The wall as a flat picture beside this one</source>
        <translation>La paroi à plat à côté de l&apos;image</translation>
    </message>
    <message>
        <source>in</source>
        <translation>po</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Imperial units; switch to metric</source>
        <translation>Pouces et pieds ; passer au métrique</translation>
    </message>
    <message>
        <source>Metric units; switch to imperial</source>
        <translation>Métrique ; passer aux pouces et pieds</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Image entière</translation>
    </message>
    <message>
        <source>Picture pixels</source>
        <translation>Pixels de l&apos;image</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Lead the keys to the value</source>
        <translation>Mener les touches à la valeur</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Champs</translation>
    </message>
    <message>
        <source>Lead the keys to the fields</source>
        <translation>Mener les touches aux champs</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Lead the keys to the picture</source>
        <translation>Mener les touches à l&apos;image</translation>
    </message>
    <message>
        <source>List of keys</source>
        <translation>Liste des touches</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hide the overlay while held</source>
        <translation>Masquer le modèle tant qu&apos;elle est tenue</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Show a cursor; again: click with it</source>
        <translation>Montrer un curseur ; encore : cliquer avec lui</translation>
    </message>
    <message>
        <source>Shift+Click</source>
        <translation>Maj+Clic</translation>
    </message>
    <message>
        <source>Set a point where a click would close the outline; Shift+Enter with the cursor</source>
        <translation>Poser un point là où un clic fermerait le contour ; Maj+Entrée avec le curseur</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Flèches</translation>
    </message>
    <message>
        <source>Move the cursor or the selected point by a pixel, or pan</source>
        <translation>Déplacer le curseur ou le point choisi d&apos;un pixel, ou l&apos;image</translation>
    </message>
    <message>
        <source>Shift+Arrows</source>
        <translation>Maj+Flèches</translation>
    </message>
    <message>
        <source>The same by ten</source>
        <translation>De même, de dix</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Accrocher</translation>
    </message>
    <message>
        <source>Find the joint&apos;s edge near the green ring</source>
        <translation>Trouver le bord du joint près de l&apos;anneau vert</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Click points of the measurement</source>
        <translation>Cliquer les points de la mesure</translation>
    </message>
    <message>
        <source>Joint</source>
        <translation>Joint</translation>
    </message>
    <message>
        <source>Click a joint; again: the next joint</source>
        <translation>Cliquer un joint ; encore : le joint suivant</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Click a line along the pipe; again: the next line</source>
        <translation>Cliquer une ligne le long du tuyau ; encore : la suivante</translation>
    </message>
    <message>
        <source>Drop the last point, or the click that was taken</source>
        <translation>Retirer le dernier point, ou le clic choisi</translation>
    </message>
    <message>
        <source>Another</source>
        <translation>Une autre</translation>
    </message>
    <message>
        <source>Another measurement on this picture</source>
        <translation>Une autre mesure sur cette image</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivante</translation>
    </message>
    <message>
        <source>Next measurement of this picture</source>
        <translation>Mesure suivante de cette image</translation>
    </message>
    <message>
        <source>Name…</source>
        <translation>Nom…</translation>
    </message>
    <message>
        <source>Name the measurement</source>
        <translation>Nommer la mesure</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Enlever</translation>
    </message>
    <message>
        <source>Remove the measurement</source>
        <translation>Enlever la mesure</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout montrer</translation>
    </message>
    <message>
        <source>Show all measurements with their names, in exports, too</source>
        <translation>Montrer toutes les mesures avec leurs noms, aussi dans les exports</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>The film, to measure another of its frames</source>
        <translation>Le film, pour mesurer une autre de ses images</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Strip of all pictures</source>
        <translation>Bande de toutes les images</translation>
    </message>
    <message>
        <source>Go to…</source>
        <translation>Aller à…</translation>
    </message>
    <message>
        <source>Go to a picture: its number, or a part of its name</source>
        <translation>Aller à une image : son numéro ou une partie du nom</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>DisplayDialog</name>
    <message>
        <source>cyan</source>
        <translation>cyan</translation>
    </message>
    <message>
        <source>green</source>
        <translation>vert</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>jaune</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>orange</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>magenta</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rouge</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>bleu</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanc</translation>
    </message>
    <message>
        <source>Colours and units</source>
        <translation>Couleurs et unités</translation>
    </message>
    <message>
        <source>Points, lines and water</source>
        <translation>Points, lignes et eau</translation>
    </message>
    <message>
        <source>Pipe</source>
        <translation>Tuyau</translation>
    </message>
    <message>
        <source>Branch and bend</source>
        <translation>Branchement et coude</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
    </message>
    <message>
        <source>metric</source>
        <translation>métriques</translation>
    </message>
    <message>
        <source>imperial</source>
        <translation>impériales</translation>
    </message>
    <message>
        <source>Usual colours</source>
        <translation>Couleurs usuelles</translation>
    </message>
    <message>
        <source>The colours that the viewer comes with</source>
        <translation>Les couleurs d’origine de la visionneuse</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::Assessment</name>
    <message>
        <source>clicks</source>
        <translation>clics</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>alignment</source>
        <translation>alignement</translation>
    </message>
    <message>
        <source>diameter</source>
        <translation>diamètre</translation>
    </message>
    <message>
        <source>field of view</source>
        <translation>angle de vue</translation>
    </message>
    <message>
        <source>laser</source>
        <translation>laser</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>échelle</translation>
    </message>
    <message>
        <source>set by eye</source>
        <translation>réglé à l&apos;œil</translation>
    </message>
    <message>
        <source>Most comes from the clicks: zoom in, or measure nearer.</source>
        <translation>L&apos;essentiel vient des clics : agrandir, ou mesurer plus près.</translation>
    </message>
    <message>
        <source>Most comes from the picture&apos;s pixels: measure nearer.</source>
        <translation>L&apos;essentiel vient des pixels de l&apos;image : mesurer plus près.</translation>
    </message>
    <message>
        <source>Most comes from the fit: click more of the joints.</source>
        <translation>L&apos;essentiel vient de l&apos;ajustement : cliquer davantage sur les joints.</translation>
    </message>
    <message>
        <source>Most comes from the alignment: click the joints.</source>
        <translation>L&apos;essentiel vient de l&apos;alignement : cliquer les joints.</translation>
    </message>
    <message>
        <source>Most comes from the diameter: measure it.</source>
        <translation>L&apos;essentiel vient du diamètre : le mesurer.</translation>
    </message>
    <message>
        <source>Most comes from the field of view: fit it to two joints.</source>
        <translation>L&apos;essentiel vient de l&apos;angle de vue : l&apos;ajuster sur deux joints.</translation>
    </message>
    <message>
        <source>Most comes from the laser spots: zoom in and click them anew.</source>
        <translation>L&apos;essentiel vient des points laser : agrandir et les cliquer à nouveau.</translation>
    </message>
    <message>
        <source>Most comes from the scale that was typed: use laser spots.</source>
        <translation>L&apos;essentiel vient de l&apos;échelle saisie : employer les points laser.</translation>
    </message>
    <message>
        <source>Most comes from what was set by eye.</source>
        <translation>L&apos;essentiel vient de ce qui a été réglé à l&apos;œil.</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2 %</translation>
    </message>
    <message>
        <source>below the limit</source>
        <translation>sous la limite</translation>
    </message>
    <message>
        <source>above the limit</source>
        <translation>au-dessus de la limite</translation>
    </message>
    <message>
        <source>cannot be decided at 95 %</source>
        <translation>indécidable à 95 %</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) kept</source>
        <translation>
            <numerusform>%n résultat gardé</numerusform>
            <numerusform>%n résultats gardés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n results: mean %1, spread %2, of the mean %3</source>
        <translation>
            <numerusform>%n résultat : moyenne %1, dispersion %2, de la moyenne %3</numerusform>
            <numerusform>%n résultats : moyenne %1, dispersion %2, de la moyenne %3</numerusform>
        </translation>
    </message>
    <message>
        <source>Point %1: %2 around, %3 along the pipe</source>
        <translation>Point %1 : %2 en tour, %3 le long du tuyau</translation>
    </message>
    <message>
        <source>Millimetres a pixel</source>
        <translation>Millimètres par pixel</translation>
    </message>
    <message>
        <source>Uncertainty of a point, mm</source>
        <translation>Incertitude d&apos;un point, mm</translation>
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
        <translation>La limite est d&apos;une autre unité.</translation>
    </message>
    <message>
        <source>Point %1: %2 across, %3 up</source>
        <translation>Point %1 : %2 en travers, %3 en hauteur</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::CameraProfiles</name>
    <message>
        <source>A camera needs a name to be kept under.</source>
        <translation>Il faut un nom pour garder une caméra.</translation>
    </message>
    <message>
        <source>Kept: %1, field of view %2°.</source>
        <translation>Gardé : %1, angle de vue %2°.</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Caméra %1</translation>
    </message>
    <message>
        <source>Kept: %1, with its lens.</source>
        <translation>Gardée : %1, avec son objectif.</translation>
    </message>
    <message>
        <source>without a name</source>
        <translation>sans nom</translation>
    </message>
    <message>
        <source>View of the lens</source>
        <translation>Vue de l’objectif</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>The picture is shown without the distortion of %1.</source>
        <translation>L’image est montrée sans la distorsion de %1.</translation>
    </message>
    <message>
        <source>Lens from joints</source>
        <translation>Objectif d’après les joints</translation>
    </message>
    <message>
        <source>The lens was estimated from the joints: k1 is %1, with a standard uncertainty of %2.</source>
        <translation>L’objectif a été estimé d’après les joints : k1 vaut %1, avec une incertitude-type de %2.</translation>
    </message>
    <message>
        <source>Without a lens</source>
        <translation>Sans objectif</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::DocumentList</name>
    <message>
        <source>There are no pictures in %1.</source>
        <translation>Il n&apos;y a pas d&apos;images dans %1.</translation>
    </message>
    <message>
        <source>%1 names no picture.</source>
        <translation>%1 ne nomme aucune image.</translation>
    </message>
    <message>
        <source>The session that is there cannot be read (%1). Saving replaces it.</source>
        <translation>La session présente est illisible (%1). L&apos;enregistrement la remplace.</translation>
    </message>
    <message>
        <source>The saved session cannot be read: %1</source>
        <translation>La session enregistrée est illisible : %1</translation>
    </message>
    <message>
        <source>The measurement in %1 was made on another picture: %2. Saving takes it over to this one.</source>
        <translation>La mesure de %1 a été faite sur une autre image : %2. L&apos;enregistrement la reprend pour celle-ci.</translation>
    </message>
    <message>
        <source>Careful, %1. Nothing is overwritten until you confirm it.</source>
        <translation>Attention, %1. Rien n&apos;est écrasé sans votre confirmation.</translation>
    </message>
    <message numerus="yes">
        <source>%n point(s) of the session meet no wall and were left out.</source>
        <translation>
            <numerusform>%n point de la session ne touche aucune paroi et a été omis.</numerusform>
            <numerusform>%n points de la session ne touchent aucune paroi et ont été omis.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 has %n frames, of which this is the first.</source>
        <translation>
            <numerusform>%1 a %n image, dont voici la première.</numerusform>
            <numerusform>%1 a %n images, dont voici la première.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::Exporter</name>
    <message>
        <source>%1 is no longer there. The measurement is saved all the same.</source>
        <translation>%1 n&apos;est plus là. La mesure est enregistrée tout de même.</translation>
    </message>
    <message>
        <source>%1 has changed since it was opened; the measurement was made before.</source>
        <translation>%1 a changé depuis l&apos;ouverture ; la mesure date d&apos;avant.</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else. Saving replaces it.</source>
        <translation>%1 a été modifié par quelqu&apos;un d&apos;autre. L&apos;enregistrement le remplace.</translation>
    </message>
    <message>
        <source>%1 is there already. Saving replaces it.</source>
        <translation>%1 existe déjà. L&apos;enregistrement le remplace.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Enregistré sous %1.</translation>
    </message>
    <message>
        <source>Written: %1. What it shows was neither set nor confirmed.</source>
        <translation>Écrit : %1. Ce qu&apos;il montre n&apos;a été ni réglé ni confirmé.</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Écrit : %1</translation>
    </message>
    <message>
        <source>There is no value to copy yet.</source>
        <translation>Il n&apos;y a pas encore de valeur à copier.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copié : %1</translation>
    </message>
    <message>
        <source>A report is being written already.</source>
        <translation>Un rapport est déjà en cours d&apos;écriture.</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::FeatureModel</name>
    <message numerus="yes">
        <source>%n more click(s)</source>
        <translation>
            <numerusform>encore %n clic</numerusform>
            <numerusform>encore %n clics</numerusform>
        </translation>
    </message>
    <message>
        <source>not used</source>
        <translation>non utilisé</translation>
    </message>
    <message>
        <source>up to %1 px off</source>
        <translation>jusqu&apos;à %1 px d&apos;écart</translation>
    </message>
    <message>
        <source>Joint %1</source>
        <translation>Joint %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Ligne %1</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::FieldModel</name>
    <message>
        <source>Slider</source>
        <translation>Curseur</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::FilmBrowser</name>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>This frame is a picture already: leave the counter empty, and change it there.</source>
        <translation>Cette image est déjà enregistrée : laissez le compteur vide et changez-le là-bas.</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::Guidance</name>
    <message>
        <source>Click the first laser spot. Esc gives up.</source>
        <translation>Cliquer le premier point laser. Échap abandonne.</translation>
    </message>
    <message>
        <source>Click the second laser spot. Esc gives up.</source>
        <translation>Cliquer le second point laser. Échap abandonne.</translation>
    </message>
    <message>
        <source>Click along a feature of the wall that runs along the pipe: a seam, the water&apos;s edge. &quot;Points&quot; goes back to measuring.</source>
        <translation>Cliquer le long d&apos;un trait de la paroi qui suit le tuyau : une soudure, le bord de l&apos;eau. « points » revient à la mesure.</translation>
    </message>
    <message>
        <source>Click on the edge of a joint: from the third click on the ring follows.</source>
        <translation>Cliquer sur le bord d&apos;un joint : dès le troisième clic, l&apos;anneau suit.</translation>
    </message>
    <message>
        <source>The ring follows. Click more of the edge, or begin another joint.</source>
        <translation>L&apos;anneau suit. Cliquer encore le bord, ou commencer un autre joint.</translation>
    </message>
    <message>
        <source>A drag pans the picture. Press &quot;Pan&quot; again to move the model.</source>
        <translation>Glisser déplace l&apos;image. Presser à nouveau « Main » pour déplacer le modèle.</translation>
    </message>
    <message>
        <source>A drag moves the pipe&apos;s far end. Press &quot;Far end&quot; again to move the pipe.</source>
        <translation>Glisser déplace le bout éloigné. Presser à nouveau « Bout éloigné » pour déplacer le tuyau.</translation>
    </message>
    <message>
        <source>If it matches already, press &quot;Confirm&quot;.</source>
        <translation>Si tout concorde déjà, presser « Confirmer ».</translation>
    </message>
    <message>
        <source>Open a picture: press Open, or drop pictures onto this window.</source>
        <translation>Ouvrir une image : presser Ouvrir, ou déposer des images sur cette fenêtre.</translation>
    </message>
    <message>
        <source>A click sets point %1; inside the dots it closes the outline. Shift+click, or a finger held down, sets a point there all the same.</source>
        <translation>Un clic pose le point %1 ; entre les pointillés, il ferme le contour. Maj+clic, ou un doigt maintenu, y pose tout de même un point.</translation>
    </message>
    <message>
        <source>No scale yet: press &quot;Laser spots&quot; and click the two spots, type mm per pixel, or load a calibration file. A click sets point %1.</source>
        <translation>Pas encore d&apos;échelle : presser « Points laser » et cliquer les deux, saisir les mm par pixel, ou charger un fichier d&apos;étalonnage. Un clic pose le point %1.</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::MeasurementEditor</name>
    <message>
        <source>Fit the field of view</source>
        <translation>Ajuster l&apos;angle de vue</translation>
    </message>
    <message>
        <source>Click a joint</source>
        <translation>Cliquer un joint</translation>
    </message>
    <message>
        <source>Click a line</source>
        <translation>Cliquer une ligne</translation>
    </message>
    <message>
        <source>Nudge click</source>
        <translation>Décaler le clic</translation>
    </message>
    <message>
        <source>Click along another line of the wall.</source>
        <translation>Cliquer le long d&apos;une autre ligne de la paroi.</translation>
    </message>
    <message>
        <source>Click on the edge of another joint.</source>
        <translation>Cliquer sur le bord d&apos;un autre joint.</translation>
    </message>
    <message>
        <source>Remove from the alignment</source>
        <translation>Retirer de l&apos;alignement</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>Ce n&apos;est pas un nombre.</translation>
    </message>
    <message>
        <source>Distance of a joint</source>
        <translation>Distance d&apos;un joint</translation>
    </message>
    <message>
        <source>There is no aligned picture before this one.</source>
        <translation>Il n&apos;y a pas d&apos;image alignée avant celle-ci.</translation>
    </message>
    <message>
        <source>Align as before</source>
        <translation>Aligner comme avant</translation>
    </message>
    <message>
        <source>That is beside the picture.</source>
        <translation>C&apos;est à côté de l&apos;image.</translation>
    </message>
    <message>
        <source>No points here: drag the pipe, and set the angle.</source>
        <translation>Pas de points ici : glisser le tuyau et régler l&apos;angle.</translation>
    </message>
    <message>
        <source>The pipe&apos;s wall is not there: no point was set.</source>
        <translation>La paroi du tuyau n&apos;est pas là : aucun point posé.</translation>
    </message>
    <message>
        <source>Set point</source>
        <translation>Poser un point</translation>
    </message>
    <message>
        <source>That point lies beyond the modelled pipe: the line of sight hardly meets the wall there. Backspace drops it.</source>
        <translation>Ce point est au-delà du tuyau modélisé : la ligne de visée y touche à peine la paroi. Retour arrière le retire.</translation>
    </message>
    <message>
        <source>The pipe&apos;s wall is not there: the level stays.</source>
        <translation>La paroi du tuyau n&apos;est pas là : le niveau reste.</translation>
    </message>
    <message>
        <source>Water level</source>
        <translation>Niveau d&apos;eau</translation>
    </message>
    <message>
        <source>That is beyond the modelled pipe, where the line of sight hardly meets the wall: click nearer.</source>
        <translation>C&apos;est au-delà du tuyau modélisé, où la ligne de visée touche à peine la paroi : cliquer plus près.</translation>
    </message>
    <message>
        <source>Move click</source>
        <translation>Déplacer le clic</translation>
    </message>
    <message>
        <source>Move point</source>
        <translation>Déplacer le point</translation>
    </message>
    <message>
        <source>Size of the mouth</source>
        <translation>Taille de l&apos;entrée</translation>
    </message>
    <message>
        <source>Move model</source>
        <translation>Déplacer le modèle</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roulis</translation>
    </message>
    <message>
        <source>Nudge point</source>
        <translation>Décaler le point</translation>
    </message>
    <message>
        <source>The pipe&apos;s wall ends there.</source>
        <translation>La paroi du tuyau s&apos;arrête là.</translation>
    </message>
    <message>
        <source>No scale: %1.</source>
        <translation>Pas d&apos;échelle : %1.</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>Étalonner</translation>
    </message>
    <message>
        <source>the pipe&apos;s direction: click another joint, or lines</source>
        <translation>la direction du tuyau : cliquer un autre joint, ou des lignes</translation>
    </message>
    <message>
        <source>the mouth&apos;s place: click a joint</source>
        <translation>la place de l&apos;entrée : cliquer un joint</translation>
    </message>
    <message>
        <source>the field of view: give two joints their distance</source>
        <translation>l&apos;angle de vue : donner leur distance à deux joints</translation>
    </message>
    <message>
        <source>Fitted: clicks lie %1 px off, at most %2 px.</source>
        <translation>Ajusté : clics à %1 px d&apos;écart, au plus %2 px.</translation>
    </message>
    <message>
        <source>Not determined: %1.</source>
        <translation>Non déterminé : %1.</translation>
    </message>
    <message>
        <source>Point %1 lies beyond the modelled pipe</source>
        <translation>Le point %1 est au-delà du tuyau modélisé</translation>
    </message>
    <message>
        <source>Length of the path</source>
        <translation>Longueur du tracé</translation>
    </message>
    <message>
        <source>no scale yet</source>
        <translation>pas encore d&apos;échelle</translation>
    </message>
    <message>
        <source>%1 mm per pixel</source>
        <translation>%1 mm par pixel</translation>
    </message>
    <message>
        <source>Pipe record</source>
        <translation>Fiche tuyau</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Measure again</source>
        <translation>Remesurer</translation>
    </message>
    <message>
        <source>Drop last point</source>
        <translation>Retirer le dernier point</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Reset alignment</source>
        <translation>Réinitialiser l&apos;alignement</translation>
    </message>
    <message>
        <source>Calibration file</source>
        <translation>Fichier d&apos;étalonnage</translation>
    </message>
    <message>
        <source>%1 gives no scale for a diameter of %2 mm.</source>
        <translation>%1 ne donne pas d&apos;échelle pour un diamètre de %2 mm.</translation>
    </message>
    <message>
        <source>Far end</source>
        <translation>Bout éloigné</translation>
    </message>
    <message>
        <source>Viewing direction</source>
        <translation>Sens de vue</translation>
    </message>
    <message>
        <source>Bend or joint</source>
        <translation>Coude ou brisure</translation>
    </message>
    <message>
        <source>View style</source>
        <translation>Style de vue</translation>
    </message>
    <message>
        <source>The clicked joints and lines hold the model. Remove them to move it.</source>
        <translation>Les joints et lignes cliqués tiennent le modèle. Les retirer pour le déplacer.</translation>
    </message>
    <message>
        <source>Drop click</source>
        <translation>Retirer le clic</translation>
    </message>
    <message>
        <source>No edge was found: %1. The model stays.</source>
        <translation>Aucun bord trouvé : %1. Le modèle reste.</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Accrocher</translation>
    </message>
    <message numerus="yes">
        <source>The joint&apos;s edge was found at %n place(s).</source>
        <translation>
            <numerusform>Le bord du joint a été trouvé à %n endroit.</numerusform>
            <numerusform>Le bord du joint a été trouvé à %n endroits.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its uncertainty cannot be told</source>
        <translation>Son incertitude ne peut être donnée</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::MeasurementModel</name>
    <message>
        <source>Another measurement</source>
        <translation>Autre mesure</translation>
    </message>
    <message>
        <source>Choose measurement</source>
        <translation>Choisir une mesure</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Remove measurement</source>
        <translation>Enlever la mesure</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::PipeRecords</name>
    <message>
        <source>cannot be read: %1</source>
        <translation>illisible : %1</translation>
    </message>
    <message>
        <source>expected a JSON object: %1</source>
        <translation>objet JSON attendu : %1</translation>
    </message>
    <message>
        <source>The nominal size is a whole number from 1 to %1.</source>
        <translation>La taille nominale est un nombre entier de 1 à %1.</translation>
    </message>
    <message>
        <source>The unit is one of %1.</source>
        <translation>L&apos;unité est l&apos;une de %1.</translation>
    </message>
    <message>
        <source>Pipe record: %1 %2.</source>
        <translation>Fiche tuyau : %1 %2.</translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::ReportJob</name>
    <message>
        <source>Report: page %1 of %2</source>
        <translation>Rapport : page %1 sur %2</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Écrit : %1</translation>
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
        <translation>Distance de %1 au premier joint, en mm</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Retirer %1</translation>
    </message>
</context>
<context>
    <name>Field</name>
    <message>
        <source>Nominal diameter</source>
        <translation>Diamètre nominal</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Direction, o&apos;clock</source>
        <translation>Direction, heure</translation>
    </message>
    <message>
        <source>Laser distance</source>
        <translation>Écart des lasers</translation>
    </message>
    <message>
        <source>Scale, mm per pixel</source>
        <translation>Échelle, mm par pixel</translation>
    </message>
    <message>
        <source>Shift left</source>
        <translation>Décalage à gauche</translation>
    </message>
    <message>
        <source>Camera height</source>
        <translation>Hauteur caméra</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roulis</translation>
    </message>
    <message>
        <source>Field of view</source>
        <translation>Angle de vue</translation>
    </message>
    <message>
        <source>Mouth size</source>
        <translation>Taille de l&apos;entrée</translation>
    </message>
    <message>
        <source>Far end left</source>
        <translation>Bout éloigné à gauche</translation>
    </message>
    <message>
        <source>Far end down</source>
        <translation>Bout éloigné en bas</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>Ce n&apos;est pas un nombre.</translation>
    </message>
    <message>
        <source>From %1 to %2 %3, please.</source>
        <translation>De %1 à %2 %3, s&apos;il vous plaît.</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Compteur</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>Open pictures</source>
        <translation>Ouvrir des images</translation>
    </message>
    <message>
        <source>Load a camera calibration</source>
        <translation>Charger un étalonnage de caméra</translation>
    </message>
    <message>
        <source>Load a pipe record</source>
        <translation>Charger une fiche tuyau</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Load a lens</source>
        <translation>Charger un objectif</translation>
    </message>
</context>
<context>
    <name>FilePicker</name>
    <message>
        <source>Folder above</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Nothing here to choose</source>
        <translation>Rien à choisir ici</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enreg.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open whole folder</source>
        <translation>Ouvrir tout le dossier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
</context>
<context>
    <name>FileRow</name>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>choisi</translation>
    </message>
</context>
<context>
    <name>FilmPanel</name>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Image %1 de %2</translation>
    </message>
    <message>
        <source>Place in the film</source>
        <translation>Position dans le film</translation>
    </message>
    <message>
        <source>Back by %1 frames</source>
        <translation>Reculer de %1 images</translation>
    </message>
    <message>
        <source>The frame before</source>
        <translation>L’image précédente</translation>
    </message>
    <message>
        <source>The next frame</source>
        <translation>L’image suivante</translation>
    </message>
    <message>
        <source>Forward by %1 frames</source>
        <translation>Avancer de %1 images</translation>
    </message>
    <message>
        <source>%1 · frame %2 of %3</source>
        <translation>%1 · image %2 sur %3</translation>
    </message>
    <message>
        <source>Counter, m</source>
        <translation>Compteur, m</translation>
    </message>
    <message>
        <source>Metres that the counter in the picture shows</source>
        <translation>Mètres que montre le compteur dans l’image</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Mesurer</translation>
    </message>
    <message>
        <source>Make this frame a picture, and measure on it</source>
        <translation>Faire de cette image du film une image à mesurer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Back to the pictures</source>
        <translation>Retour aux images</translation>
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
        <translation>Touches</translation>
    </message>
    <message>
        <source>Mouse: click sets a point, drag moves the model or a point, wheel zooms, middle drag pans. Touch: tap sets a point, hold aims with the loupe, drag moves, two fingers zoom, pan and roll.</source>
        <translation>Souris : un clic pose un point, glisser déplace le modèle ou un point, la molette agrandit, glisser au bouton du milieu déplace l&apos;image. Doigts : toucher pose un point, maintenir vise à la loupe, glisser déplace, deux doigts agrandissent, déplacent et inclinent.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Kind</name>
    <message>
        <source>A click lengthens the line. Drag a point, or nudge it with the arrow keys.</source>
        <translation>Un clic allonge la ligne. Glisser un point, ou le décaler avec les flèches.</translation>
    </message>
    <message>
        <source>Two points are a width; with a third click the length of the path is measured. Drag a point, or nudge it with the arrow keys.</source>
        <translation>Deux points font une largeur ; au troisième clic, la longueur du tracé est mesurée. Glisser un point, ou le décaler avec les flèches.</translation>
    </message>
    <message>
        <source>Crack width</source>
        <translation>Fissure</translation>
    </message>
    <message>
        <source>Click one edge of the crack. A drag pans the picture.</source>
        <translation>Cliquer un bord de la fissure. Glisser déplace l&apos;image.</translation>
    </message>
    <message>
        <source>Click the other edge of the crack.</source>
        <translation>Cliquer l&apos;autre bord de la fissure.</translation>
    </message>
    <message>
        <source>Pipe dimension</source>
        <translation>Dimension</translation>
    </message>
    <message>
        <source>Click the other end on the wall.</source>
        <translation>Cliquer l&apos;autre bout sur la paroi.</translation>
    </message>
    <message>
        <source>Drag the pipe into place, then click where the water meets the wall.</source>
        <translation>Mettre le tuyau en place, puis cliquer où l&apos;eau touche la paroi.</translation>
    </message>
    <message>
        <source>Water level</source>
        <translation>Niveau d&apos;eau</translation>
    </message>
    <message>
        <source>Drag the pipe into place; set angle, size and direction until the yellow curve meets the branch.</source>
        <translation>Mettre le tuyau en place ; régler angle, taille et direction jusqu&apos;à ce que la courbe jaune rejoigne le branchement.</translation>
    </message>
    <message>
        <source>Branch angle</source>
        <translation>Branchement</translation>
    </message>
    <message>
        <source>Branch size</source>
        <translation>Taille du branchement</translation>
    </message>
    <message>
        <source>Drag the pipe into place; set angle and direction until the circles follow the bend.</source>
        <translation>Mettre le tuyau en place ; régler angle et direction jusqu&apos;à ce que les cercles suivent le coude.</translation>
    </message>
    <message>
        <source>Bend angle</source>
        <translation>Angle de coude</translation>
    </message>
    <message>
        <source>Piece length</source>
        <translation>Longueur de pièce</translation>
    </message>
    <message>
        <source>Cross section</source>
        <translation>Section</translation>
    </message>
    <message>
        <source>Plane depth</source>
        <translation>Profondeur du plan</translation>
    </message>
    <message>
        <source>Set the plane&apos;s depth, then click along the outline on the plane.</source>
        <translation>Régler la profondeur du plan, puis cliquer le long du contour sur le plan.</translation>
    </message>
    <message>
        <source>A click sets point %1 of the outline; two points measure a length.</source>
        <translation>Un clic pose le point %1 du contour ; deux points mesurent une longueur.</translation>
    </message>
    <message>
        <source>A click sets point %1; one near the first point closes the outline.</source>
        <translation>Un clic pose le point %1 ; près du premier point, il ferme le contour.</translation>
    </message>
    <message>
        <source>Closed. Drag a point to correct it; a click starts a new outline.</source>
        <translation>Fermé. Glisser un point pour le corriger ; un clic commence un nouveau contour.</translation>
    </message>
    <message>
        <source>Click joints or drag the green pipe to align it, then click one end on the wall.</source>
        <translation>Pour aligner, cliquer les joints ou glisser le tuyau vert, puis cliquer un bout sur la paroi.</translation>
    </message>
</context>
<context>
    <name>KindButton</name>
    <message>
        <source>chosen</source>
        <translation>choisi</translation>
    </message>
</context>
<context>
    <name>KindPanel</name>
    <message>
        <source>Laser spots</source>
        <translation>Points laser</translation>
    </message>
    <message>
        <source>Set the scale with two clicks on the laser spots</source>
        <translation>Régler l&apos;échelle par deux clics sur les points laser</translation>
    </message>
    <message>
        <source>Scale file…</source>
        <translation>Fichier d&apos;échelle…</translation>
    </message>
    <message>
        <source>Load a camera calibration file</source>
        <translation>Charger un fichier d&apos;étalonnage de caméra</translation>
    </message>
    <message>
        <source>Seen</source>
        <translation>Vu</translation>
    </message>
    <message>
        <source>downstream</source>
        <translation>vers l&apos;aval</translation>
    </message>
    <message>
        <source>upstream</source>
        <translation>vers l&apos;amont</translation>
    </message>
    <message>
        <source>Shows</source>
        <translation>Montre</translation>
    </message>
    <message>
        <source>bend</source>
        <translation>coude</translation>
    </message>
    <message>
        <source>joint</source>
        <translation>brisure</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Save all the same?</source>
        <translation>Enregistrer tout de même ?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enreg.</translation>
    </message>
    <message>
        <source>Save before closing?</source>
        <translation>Enregistrer avant de fermer ?</translation>
    </message>
    <message numerus="yes">
        <source>%n measurement(s) are not saved.</source>
        <translation>
            <numerusform>%n mesure n&apos;est pas enregistrée.</numerusform>
            <numerusform>%n mesures ne sont pas enregistrées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Recent pictures</source>
        <translation>Images récentes</translation>
    </message>
    <message>
        <source>Pipe record</source>
        <translation>Fiche tuyau</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>As the system&apos;s</source>
        <translation>Celle du système</translation>
    </message>
    <message>
        <source>Camera and lens</source>
        <translation>Caméra et objectif</translation>
    </message>
    <message>
        <source>Colours and units</source>
        <translation>Couleurs et unités</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
    <message>
        <source>Name of the measurement</source>
        <translation>Nom de la mesure</translation>
    </message>
    <message>
        <source>such as: crack A</source>
        <translation>par exemple : fissure A</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Use name</source>
        <translation>Prendre le nom</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>%1 down</source>
        <translation>%1 : diminuer</translation>
    </message>
    <message>
        <source>%1 up</source>
        <translation>%1 : augmenter</translation>
    </message>
</context>
<context>
    <name>PictureCard</name>
    <message>
        <source>trouble</source>
        <translation>problème</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>non enregistrée</translation>
    </message>
    <message>
        <source>measured</source>
        <translation>mesurée</translation>
    </message>
</context>
<context>
    <name>PictureStage</name>
    <message>
        <source>Picture %1</source>
        <translation>Image %1</translation>
    </message>
    <message>
        <source>Drop pictures from inside a pipe here</source>
        <translation>Déposer ici des images de l&apos;intérieur d&apos;un tuyau</translation>
    </message>
    <message>
        <source>Open pictures</source>
        <translation>Ouvrir des images</translation>
    </message>
</context>
<context>
    <name>PictureStrip</name>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Mesurées</translation>
    </message>
    <message>
        <source>Not measured</source>
        <translation>Non mesurées</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistrées</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Number or name</source>
        <translation>N° ou nom</translation>
    </message>
    <message>
        <source>Go to a picture: its number, or a part of its name</source>
        <translation>Aller à une image : son numéro ou une partie du nom</translation>
    </message>
    <message>
        <source>Which pictures are listed: %1</source>
        <translation>Images de la liste : %1</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>None of the pictures is like that</source>
        <translation>Aucune image de ce genre</translation>
    </message>
</context>
<context>
    <name>RecordDialog</name>
    <message>
        <source>Pipe record</source>
        <translation>Fiche tuyau</translation>
    </message>
    <message>
        <source>The nominal size is the model&apos;s diameter: lengths grow with it.</source>
        <translation>La taille nominale est le diamètre du modèle : les longueurs croissent avec elle.</translation>
    </message>
    <message>
        <source>Nominal size</source>
        <translation>Taille nominale</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>From file…</source>
        <translation>Depuis un fichier…</translation>
    </message>
    <message>
        <source>Load the size from a record file</source>
        <translation>Charger la taille depuis un fichier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Use size</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>Use this size for the model</source>
        <translation>Utiliser cette taille pour le modèle</translation>
    </message>
</context>
<context>
    <name>Text</name>
    <message>
        <source>no round pipe fits the clicks</source>
        <translation>aucun tuyau rond ne correspond aux clics</translation>
    </message>
    <message>
        <source>the clicks lie too near to each other, or on one side, to tell where the pipe is</source>
        <translation>les clics sont trop proches, ou d&apos;un seul côté, pour dire où est le tuyau</translation>
    </message>
    <message>
        <source>expected a diameter, a picture and an alignment to begin with, found other numbers</source>
        <translation>diamètre, image et alignement de départ attendus, d&apos;autres nombres trouvés</translation>
    </message>
    <message>
        <source>expected three clicks on a joint, or two on each of two lines along the pipe</source>
        <translation>trois clics sur un joint attendus, ou deux sur chacune de deux lignes le long du tuyau</translation>
    </message>
    <message>
        <source>the clicks say that the camera stands outside of the pipe</source>
        <translation>d&apos;après les clics, la caméra est hors du tuyau</translation>
    </message>
    <message>
        <source>the first joint lies too far above or below the middle of the picture</source>
        <translation>le premier joint est trop au-dessus ou au-dessous du milieu de l&apos;image</translation>
    </message>
    <message>
        <source>the clicks say that the first joint or the field of view has an impossible size</source>
        <translation>d&apos;après les clics, le premier joint ou l&apos;angle de vue a une taille impossible</translation>
    </message>
    <message>
        <source>the clicks say that the far end lies outside of the first joint</source>
        <translation>d&apos;après les clics, le bout éloigné est hors du premier joint</translation>
    </message>
    <message>
        <source>is a folder, not a calibration file</source>
        <translation>est un dossier, pas un fichier d&apos;étalonnage</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>illisible : %1</translation>
    </message>
    <message>
        <source>is too large for a calibration file</source>
        <translation>est trop grand pour un fichier d&apos;étalonnage</translation>
    </message>
    <message>
        <source>holds no calibration: expected lines LASER;;;MM or DIAMETER;PIXELS;MM</source>
        <translation>ne contient pas d&apos;étalonnage : lignes LASER;;;MM ou DIAMÈTRE;PIXELS;MM attendues</translation>
    </message>
    <message>
        <source>the calibration names no distance of the laser spots</source>
        <translation>l&apos;étalonnage ne donne pas l&apos;écart des points laser</translation>
    </message>
    <message>
        <source>the two laser spots are the same pixel</source>
        <translation>les deux points laser sont le même pixel</translation>
    </message>
    <message>
        <source>expected a limit such as &quot;&lt; 0.5 mm&quot; or &quot;&gt; 20 %&quot;, found &quot;%1&quot;</source>
        <translation>limite telle que &quot;&lt; 0.5 mm&quot; ou &quot;&gt; 20 %&quot; attendue, &quot;%1&quot; trouvé</translation>
    </message>
    <message>
        <source>not set: set the value until the model matches the picture, or confirm it</source>
        <translation>non réglé : régler la valeur jusqu&apos;à ce que le modèle concorde, ou la confirmer</translation>
    </message>
    <message>
        <source>no scale yet: give millimetres per pixel, a calibration file, or the two laser spots</source>
        <translation>pas encore d&apos;échelle : donner les millimètres par pixel, un fichier d&apos;étalonnage ou les deux points laser</translation>
    </message>
    <message>
        <source>needs at least two points</source>
        <translation>demande au moins deux points</translation>
    </message>
    <message>
        <source>the points lie on one place</source>
        <translation>les points sont au même endroit</translation>
    </message>
    <message>
        <source>exists already and was left as it is</source>
        <translation>existe déjà et a été laissé tel quel</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>ne peut être écrit : %1</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n&apos;existe pas</translation>
    </message>
    <message>
        <source>is a folder, not a picture</source>
        <translation>est un dossier, pas une image</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>the file is too large: %1 MiB, at most %2 are read</source>
        <translation>le fichier est trop grand : %1 Mio, au plus %2 sont lus</translation>
    </message>
    <message>
        <source>the picture is too large: %1 x %2 pixels, at most %3 megapixels are read</source>
        <translation>l&apos;image est trop grande : %1 x %2 pixels, au plus %3 mégapixels sont lus</translation>
    </message>
    <message>
        <source>is no picture in a format that is read here: %1</source>
        <translation>n&apos;est pas une image dans un format lu ici : %1</translation>
    </message>
    <message>
        <source>the picture has no size: its header is damaged or cut off, or tells a size of zero</source>
        <translation>l&apos;image n&apos;a pas de taille : son en-tête est abîmé ou coupé, ou donne une taille nulle</translation>
    </message>
    <message>
        <source>the picture is cut off: the file ends too early</source>
        <translation>l&apos;image est coupée : le fichier finit trop tôt</translation>
    </message>
    <message>
        <source>the picture is damaged or cut off: %1</source>
        <translation>l&apos;image est abîmée ou coupée : %1</translation>
    </message>
    <message>
        <source>cannot be read to its end</source>
        <translation>ne peut être lu jusqu&apos;au bout</translation>
    </message>
    <message>
        <source>the picture shows too little of the ring</source>
        <translation>l&apos;image montre trop peu de l&apos;anneau</translation>
    </message>
    <message>
        <source>no edge runs along enough of the ring: found %1 % of it</source>
        <translation>aucun bord ne suit assez l&apos;anneau : %1 % trouvés</translation>
    </message>
    <message>
        <source>two edges fit the ring equally well</source>
        <translation>deux bords correspondent aussi bien à l&apos;anneau</translation>
    </message>
    <message>
        <source>expected finite numbers</source>
        <translation>nombres finis attendus</translation>
    </message>
    <message>
        <source>expected a number from %1 to %2, found %3</source>
        <translation>nombre de %1 à %2 attendu, %3 trouvé</translation>
    </message>
    <message>
        <source>expected two places, found %1</source>
        <translation>deux places attendues, %1 trouvées</translation>
    </message>
    <message>
        <source>is too large for a session</source>
        <translation>est trop grand pour une session</translation>
    </message>
    <message>
        <source>the session was made on a picture of %1 x %2 pixels, this one has %3 x %4</source>
        <translation>la session a été faite sur une image de %1 x %2 pixels, celle-ci en a %3 x %4</translation>
    </message>
    <message>
        <source>the picture&apos;s content is not the one that the session was made on</source>
        <translation>le contenu de l&apos;image n&apos;est pas celui sur lequel la session a été faite</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ou false</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>le nombre %1</translation>
    </message>
    <message>
        <source>the text &quot;%1&quot;</source>
        <translation>le texte &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>une liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objet</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>attendu : %1, trouvé : %2</translation>
    </message>
    <message>
        <source>expected a pixel or a position</source>
        <translation>pixel ou position attendu</translation>
    </message>
    <message>
        <source>expected an object, found %1</source>
        <translation>attendu : un objet, trouvé : %1</translation>
    </message>
    <message>
        <source>expected a list of x and y in pixels, found %1</source>
        <translation>attendu : une liste de x et y en pixels, trouvé : %1</translation>
    </message>
    <message>
        <source>expected a number, found %1</source>
        <translation>attendu : un nombre, trouvé : %1</translation>
    </message>
    <message>
        <source>expected &quot;%1&quot;, found %2</source>
        <translation>attendu : &quot;%1&quot;, trouvé : %2</translation>
    </message>
    <message>
        <source>the session has version %1.%2, this program reads up to version %3; please use a newer Zalento</source>
        <translation>la session a la version %1.%2, ce programme lit jusqu&apos;à la version %3 ; employer un Zalento plus récent</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>l&apos;un de %1</translation>
    </message>
    <message>
        <source>not a JSON object: %1 in line %2</source>
        <translation>pas un objet JSON : %1 à la ligne %2</translation>
    </message>
    <message>
        <source>not a JSON object: found a list</source>
        <translation>pas un objet JSON : une liste trouvée</translation>
    </message>
    <message>
        <source>the kind %1 lays no pipe over the picture</source>
        <translation>le type %1 ne pose pas de tuyau sur l&apos;image</translation>
    </message>
    <message>
        <source>the range from %1 to %2 mm is empty</source>
        <translation>l&apos;étendue de %1 à %2 mm est vide</translation>
    </message>
    <message>
        <source>%1 x %2 pixels are too many: give more millimetres per pixel</source>
        <translation>%1 x %2 pixels sont trop : donner plus de millimètres par pixel</translation>
    </message>
    <message>
        <source>this build has no OpenCV, which finds edges in pictures</source>
        <translation>ce programme est bâti sans OpenCV, qui trouve les bords dans les images</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>un nombre entier</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texte</translation>
    </message>
    <message>
        <source>a list of width and height in whole pixels</source>
        <translation>une liste de largeur et hauteur en pixels entiers</translation>
    </message>
    <message>
        <source>a list of x and y in pixels</source>
        <translation>une liste de x et y en pixels</translation>
    </message>
    <message>
        <source>a list of x, y and z in the scene</source>
        <translation>une liste de x, y et z dans la scène</translation>
    </message>
    <message>
        <source>a list of places [x, y]</source>
        <translation>une liste de places [x, y]</translation>
    </message>
    <message>
        <source>a number or null</source>
        <translation>un nombre ou null</translation>
    </message>
    <message>
        <source>&quot;metric&quot; or &quot;imperial&quot;</source>
        <translation>&quot;metric&quot; ou &quot;imperial&quot;</translation>
    </message>
    <message>
        <source>&quot;downstream&quot; or &quot;upstream&quot;</source>
        <translation>&quot;downstream&quot; ou &quot;upstream&quot;</translation>
    </message>
    <message>
        <source>&quot;measure&quot;, &quot;ends&quot; or &quot;full&quot;</source>
        <translation>&quot;measure&quot;, &quot;ends&quot; ou &quot;full&quot;</translation>
    </message>
    <message>
        <source>expected fx, 0, cx, 0, fy, cy, 0, 0, 1, row by row</source>
        <translation>fx, 0, cx, 0, fy, cy, 0, 0, 1 attendus, ligne par ligne</translation>
    </message>
    <message>
        <source>expected focal lengths above 0 and up to %1 pixels, found %2 and %3</source>
        <translation>des distances focales au-dessus de 0 et jusqu’à %1 pixels attendues, %2 et %3 trouvées</translation>
    </message>
    <message>
        <source>expected 4, 5 or 8 numbers, found %1</source>
        <translation>4, 5 ou 8 nombres attendus, %1 trouvés</translation>
    </message>
    <message>
        <source>expected finite numbers up to %1</source>
        <translation>des nombres finis jusqu’à %1 attendus</translation>
    </message>
    <message>
        <source>expected a width and a height in pixels</source>
        <translation>une largeur et une hauteur en pixels attendues</translation>
    </message>
    <message>
        <source>the picture of this lens would have a field of view of %1 degrees, expected %2 to %3</source>
        <translation>l’image de cet objectif aurait un champ de vision de %1 degrés, %2 à %3 attendus</translation>
    </message>
    <message>
        <source>expected a number from 0 to %1</source>
        <translation>un nombre de 0 à %1 attendu</translation>
    </message>
    <message>
        <source>estimated from joints</source>
        <translation>estimé d’après les joints</translation>
    </message>
    <message>
        <source>the joints need more clicks to tell the lens</source>
        <translation>il faut plus de clics sur les joints pour connaître l’objectif</translation>
    </message>
    <message>
        <source>no lens with one coefficient fits the joints</source>
        <translation>aucun objectif à un coefficient ne convient aux joints</translation>
    </message>
    <message>
        <source>the joints do not tell the lens</source>
        <translation>les joints ne révèlent pas l’objectif</translation>
    </message>
    <message>
        <source>the picture has a lens already</source>
        <translation>l’image a déjà un objectif</translation>
    </message>
    <message>
        <source>expected %1 joints with three clicks or more, found %2</source>
        <translation>%1 joints d’au moins trois clics attendus, %2 trouvés</translation>
    </message>
    <message>
        <source>the joints do not tell the lens from a straight one: k1 is %1 with a standard uncertainty of %2</source>
        <translation>les joints ne distinguent pas l’objectif d’un objectif droit : k1 vaut %1 avec une incertitude-type de %2</translation>
    </message>
    <message>
        <source>expected plumb_bob or rational_polynomial, found %1</source>
        <translation>plumb_bob ou rational_polynomial attendu, %1 trouvé</translation>
    </message>
    <message>
        <source>a list of 9 numbers, row by row</source>
        <translation>une liste de 9 nombres, ligne par ligne</translation>
    </message>
    <message>
        <source>is no file of a camera: expected OpenCV&apos;s YAML or JSON</source>
        <translation>n’est pas un fichier de caméra : YAML ou JSON d’OpenCV attendu</translation>
    </message>
    <message>
        <source>is a folder, not a file of a camera</source>
        <translation>est un dossier, pas un fichier de caméra</translation>
    </message>
    <message>
        <source>is too large for a file of a camera</source>
        <translation>est trop grand pour un fichier de caméra</translation>
    </message>
    <message>
        <source>the lens is for pictures of %1 x %2 pixels, this one has %3 x %4</source>
        <translation>l’objectif vaut pour des images de %1 x %2 pixels, celle-ci en a %3 x %4</translation>
    </message>
    <message>
        <source>the picture is too long: up to %1 pixels a side are undistorted</source>
        <translation>l’image est trop longue : jusqu’à %1 pixels par côté sont redressés</translation>
    </message>
    <message>
        <source>a list of numbers</source>
        <translation>une liste de nombres</translation>
    </message>
    <message>
        <source>&quot;square&quot; or &quot;all&quot;</source>
        <translation>« square » ou « all »</translation>
    </message>
    <message>
        <source>the lens maps nothing to the click at %1,%2</source>
        <translation>l’objectif ne projette rien sur le clic en %1,%2</translation>
    </message>
    <message>
        <source>this build has no OpenCV, which undistorts pictures</source>
        <translation>cette version n’a pas OpenCV, qui redresse les images</translation>
    </message>
    <message>
        <source>this build has no OpenCV, which reads files of lenses</source>
        <translation>cette version n’a pas OpenCV, qui lit les fichiers d’objectifs</translation>
    </message>
    <message>
        <source>expected a name of one line and at most %1 characters, found &quot;%2&quot;</source>
        <translation>attendu : un nom d’une ligne et d’au plus %1 caractères, trouvé : &quot;%2&quot;</translation>
    </message>
    <message>
        <source>another measurement is named &quot;%1&quot;</source>
        <translation>une autre mesure s’appelle &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The picture has changed since it was measured.</source>
        <translation>L&apos;image a changé depuis sa mesure.</translation>
    </message>
    <message>
        <source>Without its overlay: nobody has set what it shows.</source>
        <translation>Sans le modèle : personne n&apos;a réglé ce qu&apos;il montre.</translation>
    </message>
    <message>
        <source>Inspection report</source>
        <translation>Rapport d&apos;inspection</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Pipe</source>
        <translation>Tuyau</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>is too large for a record file</source>
        <translation>est trop grand pour une fiche</translation>
    </message>
    <message>
        <source>expected a JSON object: %1</source>
        <translation>objet JSON attendu : %1</translation>
    </message>
    <message>
        <source>expected a JSON object, found a list</source>
        <translation>objet JSON attendu, liste trouvée</translation>
    </message>
    <message>
        <source>Scale 1 : %1, diameter %2 mm</source>
        <translation>Échelle 1 : %1, diamètre %2 mm</translation>
    </message>
    <message>
        <source>measured</source>
        <translation>mesuré</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>aucune valeur</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>non réglé</translation>
    </message>
    <message>
        <source>not measured</source>
        <translation>non mesuré</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>Crack width</source>
        <translation>Largeur de fissure</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Water level</source>
        <translation>Niveau d&apos;eau</translation>
    </message>
    <message>
        <source>Branch angle</source>
        <translation>Angle de branchement</translation>
    </message>
    <message>
        <source>Bend angle</source>
        <translation>Angle de coude</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Aire</translation>
    </message>
    <message>
        <source>Share of the section</source>
        <translation>Part de la section</translation>
    </message>
    <message>
        <source>Share of the diameter</source>
        <translation>Part du diamètre</translation>
    </message>
    <message>
        <source>below</source>
        <translation>au-dessous</translation>
    </message>
    <message>
        <source>above</source>
        <translation>au-dessus</translation>
    </message>
    <message>
        <source>cannot be decided at 95 %</source>
        <translation>indécidable à 95 %</translation>
    </message>
    <message>
        <source>clicks</source>
        <translation>clics</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>alignment</source>
        <translation>alignement</translation>
    </message>
    <message>
        <source>diameter</source>
        <translation>diamètre</translation>
    </message>
    <message>
        <source>field of view</source>
        <translation>angle de vue</translation>
    </message>
    <message>
        <source>laser</source>
        <translation>laser</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>échelle</translation>
    </message>
    <message>
        <source>set by eye</source>
        <translation>réglé à l&apos;œil</translation>
    </message>
    <message>
        <source>the uncertainty has no number</source>
        <translation>l&apos;incertitude n&apos;a pas de nombre</translation>
    </message>
    <message>
        <source>%1, %2 results: mean %3 %5, standard deviation %4 %5</source>
        <translation>%1, %2 résultats : moyenne %3 %5, écart type %4 %5</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>Camera height, %</source>
        <translation>Hauteur de la caméra, %</translation>
    </message>
    <message>
        <source>Far end, left</source>
        <translation>Bout éloigné, à gauche</translation>
    </message>
    <message>
        <source>Far end, down</source>
        <translation>Bout éloigné, en bas</translation>
    </message>
    <message>
        <source>Mouth, %</source>
        <translation>Entrée, %</translation>
    </message>
    <message>
        <source>Field of view, °</source>
        <translation>Angle de vue, °</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alignement</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diamètre</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>%1 mm a pixel</source>
        <translation>%1 mm par pixel</translation>
    </message>
    <message>
        <source>Lens taken out</source>
        <translation>Objectif compensé</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Fiche</translation>
    </message>
    <message>
        <source>Pictures: %1; measurements: %2</source>
        <translation>Images : %1 ; mesures : %2</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Mesuré</translation>
    </message>
    <message>
        <source>Value, uncertainty (k = 2)</source>
        <translation>Valeur, incertitude (k = 2)</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>with its uncertainty (k = 2)</source>
        <translation>avec son incertitude (k = 2)</translation>
    </message>
    <message>
        <source>uncertain by</source>
        <translation>incertain par</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Vue d&apos;ensemble</translation>
    </message>
    <message>
        <source>Folder: %1</source>
        <translation>Dossier : %1</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>1 joint</source>
        <translation>1 joint</translation>
    </message>
    <message>
        <source>%1 joints</source>
        <translation>%1 joints</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 ligne</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>%1 lignes</translation>
    </message>
    <message>
        <source> and </source>
        <translation> et </translation>
    </message>
    <message>
        <source>not fitted</source>
        <translation>non ajusté</translation>
    </message>
    <message>
        <source>fitted to %1, rms %2 px, largest %3 px</source>
        <translation>ajusté sur %1, écart quadratique %2 px, le plus grand %3 px</translation>
    </message>
    <message>
        <source>%1; not determined: %2</source>
        <translation>%1 ; non déterminé : %2</translation>
    </message>
    <message>
        <source>the name of a measurement</source>
        <translation>le nom d’une mesure</translation>
    </message>
    <message>
        <source>does not tell when its frames are shown</source>
        <translation>ne dit pas quand ses images sont montrées</translation>
    </message>
    <message>
        <source>can no longer be read</source>
        <translation>n’est plus lisible</translation>
    </message>
    <message>
        <source>frame %1 is damaged</source>
        <translation>l’image %1 est endommagée</translation>
    </message>
    <message>
        <source>cannot be read as a film: %1</source>
        <translation>n’est pas lisible comme film : %1</translation>
    </message>
    <message>
        <source>has more than %1 megapixels</source>
        <translation>a plus de %1 mégapixels</translation>
    </message>
    <message>
        <source>this build has no FFmpeg, which reads films</source>
        <translation>cette version n’a pas FFmpeg, qui lit les films</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Compteur</translation>
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
        <translation>l’image %1 est trop grande</translation>
    </message>
    <message>
        <source>mm a pixel</source>
        <translation>mm par pixel</translation>
    </message>
    <message>
        <source>U of a point, mm</source>
        <translation>U d&apos;un point, mm</translation>
    </message>
    <message>
        <source>expected one of %1, found &quot;%2&quot;</source>
        <translation>%1 attendus, « %2 » trouvé</translation>
    </message>
    <message>
        <source>%1 is not measured on object %2</source>
        <translation>%1 ne se mesure pas sur l’objet %2</translation>
    </message>
    <message>
        <source>cannot be read as a film: it has no pictures</source>
        <translation>n’est pas lisible comme film : il n’a pas d’images</translation>
    </message>
    <message>
        <source>cannot be read as a film: it is damaged, incomplete or something else</source>
        <translation>n’est pas lisible comme film : il est endommagé, incomplet ou autre chose</translation>
    </message>
</context>
<context>
    <name>ToolKey</name>
    <message>
        <source>chosen</source>
        <translation>choisi</translation>
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
        <translation>Image avec modèle (PNG)</translation>
    </message>
    <message>
        <source>Overlay as vectors (SVG)</source>
        <translation>Modèle en vecteurs (SVG)</translation>
    </message>
    <message>
        <source>Wall as a flat picture (PNG)</source>
        <translation>Paroi à plat (PNG)</translation>
    </message>
    <message>
        <source>Values of all pictures (CSV)</source>
        <translation>Valeurs de toutes les images (CSV)</translation>
    </message>
    <message>
        <source>Values of all pictures (JSON)</source>
        <translation>Valeurs de toutes les images (JSON)</translation>
    </message>
    <message>
        <source>Session to another place…</source>
        <translation>Session à un autre endroit…</translation>
    </message>
    <message>
        <source>Pipe record</source>
        <translation>Fiche tuyau</translation>
    </message>
    <message>
        <source>Type the pipe&apos;s nominal size, or load it from a record file</source>
        <translation>Saisir la taille nominale du tuyau, ou la charger depuis un fichier</translation>
    </message>
    <message>
        <source>Menu: pictures opened lately, language, keys</source>
        <translation>Menu : images récentes, langue, touches</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source> · %1 × %2</source>
        <translation> · %1 × %2</translation>
    </message>
    <message>
        <source>Save the picture with its overlay, the values, or a report</source>
        <translation>Enregistrer l&apos;image avec le modèle, les valeurs ou un rapport</translation>
    </message>
    <message>
        <source>Report on all pictures (PDF)</source>
        <translation>Rapport sur toutes les images (PDF)</translation>
    </message>
</context>
<context>
    <name>ValuePanel</name>
    <message>
        <source>not set</source>
        <translation>non réglé</translation>
    </message>
    <message>
        <source>no scale yet</source>
        <translation>pas encore d&apos;échelle</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>Valeur : %1</translation>
    </message>
    <message>
        <source> of the section</source>
        <translation> de la section</translation>
    </message>
    <message>
        <source> of the diameter</source>
        <translation> du diamètre</translation>
    </message>
</context>
<context>
    <name>WallPanel</name>
    <message>
        <source>Open a picture to see its wall made flat.</source>
        <translation>Ouvrir une image pour voir sa paroi à plat.</translation>
    </message>
    <message>
        <source>Plane, straightened</source>
        <translation>Plan, redressé</translation>
    </message>
    <message>
        <source>Wall, unrolled</source>
        <translation>Paroi, déroulée</translation>
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
        <translation>Taille de l&apos;image : %1</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Main</translation>
    </message>
    <message>
        <source>Drag pans the picture</source>
        <translation>Glisser déplace l&apos;image</translation>
    </message>
</context>
</TS>
