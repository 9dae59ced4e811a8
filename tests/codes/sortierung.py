"""The order of findings with equal keys is part of a protocol: it is that of this sort."""


def sortieren(liste, begleitliste):
    """The protocol's quicksort, to the letter: equal elements are exchanged too."""
    def bereich(links, rechts):
        if rechts <= links:
            return
        i, j = links, rechts
        mitte = liste[(links + rechts) // 2]
        while True:
            while liste[i] < mitte:
                i += 1
            while mitte < liste[j]:
                j -= 1
            if i > j:
                break
            if i != j:
                liste[i], liste[j] = liste[j], liste[i]
                begleitliste[i], begleitliste[j] = begleitliste[j], begleitliste[i]
            i += 1
            j -= 1
            if i > j:
                break
        if links < j:
            bereich(links, j)
        if i < rechts:
            bereich(i, rechts)

    bereich(0, len(liste) - 1)
