<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>Les options de %1 ne peuvent pas être enregistrées&#xa0;: elles sont trop longues ou contiennent un saut de ligne.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>Mot de passe pour %1 sur %2&#xa0;? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» est inaccessible.</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>Le serveur d’impression n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>Le serveur d’impression s’est interrompu au milieu d’une réponse.</translation>
    </message>
</context>
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>Choisir le décalage d’impression étendu</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Décalage&#xa0;:</translation>
    </message>
    <message>
        <source>-0.75mm</source>
        <translation>-0.75mm</translation>
    </message>
    <message>
        <source>-0.50mm</source>
        <translation>-0.50mm</translation>
    </message>
    <message>
        <source>-0.25mm</source>
        <translation>-0.25mm</translation>
    </message>
    <message>
        <source> 0.00mm</source>
        <translation> 0.00mm</translation>
    </message>
    <message>
        <source> 0.25mm</source>
        <translation> 0.25mm</translation>
    </message>
    <message>
        <source> 0.50mm</source>
        <translation> 0.50mm</translation>
    </message>
    <message>
        <source> 0.75mm</source>
        <translation> 0.75mm</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>%1 to %2 inches</source>
        <translation>%1 à %2 pouces</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 pouces = %2 mm</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>Uniquement des nombres de %1 à %2, avec deux décimales au plus.</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>%1 à %2 points</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 points = %2 mm</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>Uniquement des nombres entiers de %1 à %2.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>Le serveur d’impression demande un nom d’utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>Ils n’ont pas été acceptés. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nom d’utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>%1 ne peut pas être modifié.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>%1 ne peut pas être supprimé.</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>DL</source>
        <translation>DL</translation>
    </message>
</context>
<context>
    <name>PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>Imprimante par défaut</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Type&#xa0;:</translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation>Vantry</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>Lieu&#xa0;:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Ici</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Imprimer dans un fichier</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>Nombre de copies&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>Lancer l’impression maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>Voulez-vous remplacer l’imprimante actuelle par 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>&#xa0;?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>Changement d’imprimante</translation>
    </message>
</context>
<context>
    <name>PrintPropertiesDialog</name>
    <message>
        <source>PrintPropertiesDialog</source>
        <translation>PrintPropertiesDialog</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>Format de page personnalisé</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>pouces</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Hauteur&#xa0;:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>Portrait 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>Paysage 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Miroir</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Négatif</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>Gérer...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>Réglages de vitesse</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Densité d’impression</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>Les préréglages enregistrent vos réglages d’impression sous un nom
pour passer rapidement d’une configuration à l’autre.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>Liste des préréglages&#xa0;:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Description&#xa0;:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>Mettre à jour...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>Réglages du support</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>Type de support&#xa0;:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>Largeur de la marque noire&#xa0;:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>Décalage de la marque noire&#xa0;:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>Méthode d’impression&#xa0;:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>Gestion du support</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Coupe&#xa0;:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>Avance&#xa0;:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>Recul&#xa0;:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>points</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>Chevauchement&#xa0;:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>Réglages de position</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>Position d’arrêt&#xa0;:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>Position de départ&#xa0;:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Commandes utilisateur</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>Début de tâche</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>Début d’étiquette</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>Fin d’étiquette</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>Fin de tâche</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>Réglage de position</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>Décalage horizontal&#xa0;:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>Décalage vertical&#xa0;:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continu</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Étiquettes avec intervalles</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Étiquettes avec marques</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Pas de coupe</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Couper après la tâche</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Couper après chaque page</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>Décalage vertical</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>Position d’arrêt</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>Taille de l’intervalle</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>Décalage de l’intervalle</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>Taille de la marque noire</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>Décalage de la marque noire</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>Nouveau préréglage</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>Nouveau préréglage %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>Orientation : %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>Orientation : %1, en miroir</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>Orientation : %1, en négatif</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>Orientation : %1, en miroir et en négatif</translation>
    </message>
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>Le pilote de cette imprimante ne propose pas ce réglage.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>De %1 x %2 à %3 x %4 pouces.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>Le pilote de cette imprimante n’accepte que les formats de page de sa liste.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>Laissé au choix de l’imprimante (%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>Vide&#xa0;: laissé au choix de l’imprimante (%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>Le pilote de cette imprimante n’a pas de réglages d’étiquettes. Seuls le format de page et l’orientation sont pris en compte.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 et %2 ne peuvent pas être utilisés ensemble.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>Ce préréglage ne peut pas contenir les réglages actuels de l’imprimante&#xa0;: %1. Le choisir les modifierait.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>Propriétés de l’imprimante d’étiquettes</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>Choisir une &amp;imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>File d’attente</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>N’accepte pas de tâches</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression en cours</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêtée</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>Imprimer une étiquette de &amp;test</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Affiche et modifie les réglages d’une imprimante d’étiquettes.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>Liste les files d’attente, celle par défaut marquée d’un astérisque.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argument inattendu « %1 »</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>il n’y a pas d’imprimante « %1 » ; --list donne les noms existants</translation>
    </message>
    <message>
        <source>Label Printer Properties</source>
        <translation>Propriétés de l’imprimante d’étiquettes</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>La file d’attente, au lieu d’une choisie dans une liste.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>Imprime une étiquette pour régler les décalages et la densité, sur la file d’attente indiquée ou celle par défaut.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Affiche cette aide.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Affiche la version.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>Le service d’impression est inaccessible&#xa0;: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>Aucune imprimante n’est configurée.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>L’étiquette de test n’a pas pu être imprimée&#xa0;: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>il n’y a pas d’imprimante par défaut&#xa0;; indiquez-en une avec -p</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>L’étiquette de test a été envoyée à %1.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>impossible d’afficher une fenêtre&#xa0;: ni DISPLAY ni WAYLAND_DISPLAY n’est définie</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>impossible d’afficher une fenêtre avec %1</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>L’imprimante par défaut «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>Les préréglages n’ont pas pu être enregistrés.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Les réglages n’ont pas pu être enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Ces réglages ne peuvent pas être utilisés ensemble&#xa0;:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>Voulez-vous les remplacer par les suivants&#xa0;?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Utilisation&#xa0;: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[options]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options&#xa0;:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Option inconnue «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Valeur manquante après «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valeur inattendue après «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>Ce préréglage contient les réglages actuels de ce pilote.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>Ce préréglage contient les réglages d’origine par défaut de ce pilote.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>Préférences d’impression de %1</translation>
    </message>
</context>
<context>
    <name>TestLabel</name>
    <message>
        <source>Continuous</source>
        <translation>Continu</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Étiquettes avec intervalles</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Étiquettes avec marques</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Pas de coupe</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Couper après la tâche</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Couper après chaque page</translation>
    </message>
    <message>
        <source>Darkness %1</source>
        <translation>Densité d’impression %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Vitesse %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>Décalage %1, %2 points</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Réglages par défaut</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>Étiquette de test</translation>
    </message>
</context>
</TS>
