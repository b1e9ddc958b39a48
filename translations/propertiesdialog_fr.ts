<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>Choisir le décalage d’impression étendu</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Décalage :</translation>
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
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>État :</translation>
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
        <translation>Type :</translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation>Vantry</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>Lieu :</translation>
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
        <translation>Nombre de copies :</translation>
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
        <translation>Lancer l’impression maintenant ?</translation>
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
        <translation> ?</translation>
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
        <translation>Largeur :</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>pouces</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Hauteur :</translation>
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
        <translation>Nom :</translation>
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
        <translation>Liste des préréglages :</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Description :</translation>
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
        <translation>Type de support :</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>Largeur de la marque noire :</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>Décalage de la marque noire :</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>Méthode d’impression :</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>Gestion du support</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Coupe :</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>Avance :</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>Recul :</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>points</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>Chevauchement :</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>Réglages de position</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>Position d’arrêt :</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>Position de départ :</translation>
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
        <translation>Décalage horizontal :</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>Décalage vertical :</translation>
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
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Affiche et modifie les réglages d’une imprimante d’étiquettes.</translation>
    </message>
    <message>
        <source>The queue, instead of the default one.</source>
        <translation>La file d’attente, au lieu de celle par défaut.</translation>
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
</TS>
